// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <array>
#include <chrono>

/// Bounds of the cloud folder: sizes read from outside, and waits.
namespace limits {

/// Size of a directory map.
constexpr qint64 dirmapBytes = 16LL * 1024 * 1024;
/// A longer document is not looked at and counts as none.
constexpr qint64 pulledDocumentBytes = 64LL * 1024 * 1024;
/// Lines of a directory map.
constexpr int dirmapLines = 200'000;
/// Bytes of one line of a directory map.
constexpr int dirmapLineBytes = 4096;

/// Size of a deployment file.
constexpr qint64 deploymentBytes = 1024LL * 1024;

/// Between one and two of these without any progress and a transfer is given up.
constexpr std::chrono::milliseconds transferStall{8000};
/// Body of the answer to a POST, which is kept in memory.
constexpr qint64 answerBytes = 16LL * 1024 * 1024;
/// What is kept of a body that is being downloaded until it is written.
constexpr qint64 readBufferBytes = 1024LL * 1024;

/// Files that are carried at once, which is how many connections to a host a network manager has.
constexpr int transfersAtOnce = 6;
/// Files that fail one behind the other before the rest is not tried any more.
constexpr int failuresInRow = 12;

/// Of the files of one project that fail, those that the log names; the others are counted.
constexpr int loggedPaths = 10;
/// UTF-16 units of a text from outside in a line of the log.
constexpr int loggedText = 1000;

/// Silence after which a realtime stream counts as failed; the service keeps it alive every 30 s.
constexpr std::chrono::milliseconds streamSilence{75'000};
/// Size of one event of a realtime stream.
constexpr int eventBytes = 10 * 1024 * 1024;
/// Redirects of a realtime stream between two events.
constexpr int redirects = 5;

/// How long an assertion for the token service counts.
constexpr std::chrono::seconds assertionLife{3600};
/// A token of which less than this is left is renewed.
constexpr std::chrono::seconds tokenReserve{600};
/// How far this computer's clock may be from the token service's.
constexpr std::chrono::seconds clockTolerance{60};
/// How long a signed URL is good.
constexpr std::chrono::seconds signedUrlLife{3600};
/// Pages of a list, of a thousand names each.
constexpr int listingPages = 1000;

/// Between the attempts at what failed, before the next thing is done.
constexpr std::array<std::chrono::milliseconds, 2> retryPauses{std::chrono::milliseconds{500},
                                                               std::chrono::milliseconds{2000}};
/// Until a pull that failed is tried again: doubled each time, with some chance in it.
constexpr std::chrono::milliseconds laterFirst{1000};
constexpr std::chrono::milliseconds laterMost{60'000};
/// How often a push plans again because somebody else has published meanwhile.
constexpr int pushPlans = 10;
/// How long a start waits, looking now and then, for the end of another program that has left journals.
constexpr std::chrono::milliseconds lockWait{3000};
constexpr std::chrono::milliseconds lockPause{50};
/// How long the end of the program waits for the worker before it is terminated.
constexpr std::chrono::milliseconds workerEnd{2000};
/// Between two reports of how far a file is.
constexpr std::chrono::milliseconds progressInterval{50};

} // namespace limits
