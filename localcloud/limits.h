// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

/// Bounds of the local cloud: sizes read from outside, and waits.
namespace localcloud::limits {

constexpr std::int64_t kibibyte = 1024;
constexpr std::int64_t mebibyte = 1024 * kibibyte;

// ------------------------------------------------------------------------------------------- connections

/// Connections at a time; a further one is closed at once.
constexpr std::size_t connections = 4096;
/// Connections that wait to be accepted (the kernel's own bound may be lower).
constexpr int backlog = 4096;
/// Pause before accepting again when no connection can be had.
constexpr std::chrono::milliseconds acceptPause{100};
/// Request line and header fields, bytes.
constexpr std::uint32_t headBytes = 32 * 1024;
/// Room for a head as it usually is, bytes.
constexpr std::size_t usualHeadBytes = 4 * kibibyte;
/// Room for what the client of a stream has no reason to send, bytes.
constexpr std::size_t strayBytes = 256;
/// Read at a time from a connection with a large body, bytes.
constexpr std::size_t pieceBytes = 256 * kibibyte;
/// Sent at a time by the kernel from a file before other connections have their turn, bytes.
constexpr std::size_t sendBytes = 1024 * kibibyte;
/// A body of a file up to this size goes out in one write with its head, bytes.
constexpr std::int64_t smallFileBytes = 64 * kibibyte;
/// Of a refused request's body, read and thrown away so that the connection can be kept, bytes.
constexpr std::int64_t discardedBytes = 1024 * kibibyte;

/// A kept connection without a request.
constexpr std::chrono::seconds idle{300};
/// From the first byte of a request to the end of its head.
constexpr std::chrono::seconds head{10};
/// Without a byte of a request's body.
constexpr std::chrono::seconds body{60};
/// Without a byte of an answer taken.
constexpr std::chrono::seconds send{60};
/// Reading what a client still sends after its request was refused.
constexpr std::chrono::seconds linger{5};
/// A connection that stalls because a test asked for it.
constexpr std::chrono::seconds stall{600};

// --------------------------------------------------------------------------------------- bodies in memory

/// A token request.
constexpr std::size_t tokenBytes = 64 * kibibyte;
/// A sign-up or sign-in.
constexpr std::size_t identityBytes = 64 * kibibyte;
/// An object's metadata.
constexpr std::size_t metadataBytes = 1024 * kibibyte;
/// One write into the database.
constexpr std::size_t writeBytes = 10 * mebibyte;
/// A list of faults.
constexpr std::size_t faultsBytes = 32 * mebibyte;
/// A body that a fault makes up.
constexpr std::size_t madeUpBytes = 64 * mebibyte;
/// Nesting of a JSON text.
constexpr int jsonDepth = 64;

// ------------------------------------------------------------------------------------------------- storage

/// An object's name, bytes of UTF-8.
constexpr std::size_t objectNameBytes = 1024;
/// Results on one page of a listing.
constexpr int listResults = 1000;
/// Resumable uploads that are not finished; a further one takes the oldest one's place.
constexpr std::size_t uploadSessions = 1000;
/// Age at which an upload that is not finished is forgotten at the next start.
constexpr std::chrono::hours uploadAge{7 * 24};
/// A chunk of a resumable upload, unless it is the last, counts in whole multiples of this, bytes.
constexpr std::int64_t uploadChunk = 256 * kibibyte;
/// Written of an upload before the kernel is asked to begin storing it, bytes.
constexpr std::int64_t writeBehindBytes = 8 * mebibyte;

// ------------------------------------------------------------------------------------------------ database

/// Levels of keys.
constexpr std::size_t treeDepth = 32;
/// One key, bytes of UTF-8.
constexpr std::size_t keyBytes = 768;
/// Events that a stream's reader has not taken yet, bytes; a reader further behind is cut off.
constexpr std::size_t streamQueueBytes = 4 * mebibyte;
/// Between two signs of life on a stream.
constexpr std::chrono::seconds keepAlive{30};

// -------------------------------------------------------------------------------------------------- tokens

/// Longest life of an assertion, and default life of a token.
constexpr std::chrono::seconds tokenLife{3600};
/// How far a client's clock may be ahead.
constexpr std::chrono::seconds clockSkew{300};

} // namespace localcloud::limits
