// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <optional>

/// Announcements of players on the local network: UDP datagrams to announcementPort (docs/lan-protocol.md).
constexpr quint16 announcementPort = 45000;

/// The datagram by which the player `name`, which must hold no "@", tells the TCP port that it listens on.
QByteArray announcement(const QByteArray& name, quint16 port);

/// The TCP port that a datagram announces, cut to 16 bits, 0 when it says no number. Nothing when it is no
/// announcement.
std::optional<quint16> announcedPort(const QByteArray& datagram);
