// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/peeraddress.h"

#include <sys/socket.h>

QHostAddress plainAddress(const QHostAddress& address)
{
    bool isIpv4 = false;
    const quint32 ipv4 = address.toIPv4Address(&isIpv4);
    return isIpv4 ? QHostAddress(ipv4) : address;
}

QHostAddress peerOf(qintptr socketDescriptor)
{
    sockaddr_storage storage{};
    socklen_t size = sizeof storage;
    auto* address = reinterpret_cast<sockaddr*>(&storage);
    if (::getpeername(int(socketDescriptor), address, &size) != 0)
        return {};
    return plainAddress(QHostAddress(address));
}
