// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHostAddress>

/// `address` as one writes it: an IPv4 address that reached an IPv6 socket in its IPv4 form.
QHostAddress plainAddress(const QHostAddress& address);

/// Address of the peer of a connected socket; null when it has none any more.
QHostAddress peerOf(qintptr socketDescriptor);
