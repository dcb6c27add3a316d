// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/announcement.h"

#include <QList>

QByteArray announcement(const QByteArray& name, quint16 port)
{
    return name + '@' + QByteArray::number(port);
}

std::optional<quint16> announcedPort(const QByteArray& datagram)
{
    const QList<QByteArray> parts = datagram.split('@');
    if (parts.size() != 2)
        return std::nullopt;
    return quint16(parts[1].toInt());
}
