// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <chrono>

/// Bounds of the lan folder: sizes read from outside, and waits.
namespace limits {

/// Time between two announcements.
constexpr std::chrono::milliseconds announceInterval{2000};
/// A longer datagram is no announcement.
constexpr int datagramBytes = 1500;
/// Datagrams that are read before the event loop gets its turn.
constexpr int datagramsAtOnce = 256;

/// Players that are connected at the same time.
constexpr int peers = 200;
/// Connections begun by others, and begun here, of which the player's name has not come yet.
constexpr int pendingConnections = 15;
/// File descriptors that accepting leaves free for everything else, and how long it waits when they are few.
constexpr int spareDescriptors = 32;
constexpr std::chrono::milliseconds acceptPause{1000};

/// How long connecting may take, and the player's name after it.
constexpr std::chrono::milliseconds connectTime{30'000};
constexpr std::chrono::milliseconds helloTime{10'000};
/// A connection on which something is due, but nothing moves, is given up after this time; looked at every
/// tick.
constexpr std::chrono::milliseconds stallTime{20'000};
constexpr std::chrono::milliseconds stallTick{2'000};
/// The same while only an answer is due: the peer may be bringing much to a slow disk.
constexpr std::chrono::milliseconds answerTime{120'000};
/// When nothing is due, the system asks a silent peer after so many seconds, again after so many, so often.
constexpr int keepAliveIdle = 5;
constexpr int keepAliveInterval = 2;
constexpr int keepAliveCount = 3;

/// Payload of a frame.
constexpr qint64 payloadBytes = 64LL * 1024;
/// UTF-16 units of a player's name.
constexpr int playerName = 255;
/// Size of one file, and disk space that no file of a peer takes.
constexpr qint64 fileBytes = 1LL << 40;
constexpr qint64 diskReserveBytes = 64LL * 1024 * 1024;
/// Content goes out in pieces of this size, and is taken from a socket that holds no more than that.
constexpr qint64 chunkBytes = 10'240;
constexpr qint64 socketBufferBytes = 256LL * 1024;
/// Frames that wait to be sent; while there are more, nothing is read.
constexpr int waitingFrames = 64;
/// Time between two looks at the progress of an exchange.
constexpr std::chrono::milliseconds exchangeProgressInterval{100};
/// A longer document is not looked at and counts as none.
constexpr qint64 documentBytes = 4LL * 1024 * 1024;
/// Lines in the log about one address in a period; characters of a path in such a line; addresses that are
/// counted apart.
constexpr int linesAboutPeer = 20;
constexpr std::chrono::minutes logPeriod{1};
constexpr int loggedPath = 200;
constexpr int loggedAddresses = 256;
/// Files of one peer that could not be kept, before its connection is closed.
constexpr int missedFiles = 1000;

} // namespace limits
