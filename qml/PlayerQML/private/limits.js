.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Waits and periods of the shell, in milliseconds, and bounds of what it takes from outside. Tests may set them.

/// The first heartbeat after the start, and the time between two.
var firstHeartbeat = 1000;
var heartbeatPeriod = 60000;
/// Heartbeats between two screenshots.
var screenshotPeriod = 20;

/// How long a request to the account's database or to the sign-in service may take.
var requestDeadline = 10000;

/// A realtime stream that is silent for so long is opened again; its keep-alives come every 30 s.
var streamSilence = 75000;

/// How often streams that have ended are looked after; and until one is opened again: doubled each time up to the
/// most, with some chance in it, and from the start once a stream has lasted.
var streamMending = 1000;
var reopenFirst = 1000;
var reopenMost = 60000;
var streamLasts = 40000;

/// Between two attempts to look a project of the account up.
var lookUpPeriod = 10000;

/// Longest name, in UTF-16 units, and longest revision that is taken from the database; and what the log shows of
/// a longer text.
var nameLength = 255;
var revisionLength = 64;
var logLength = 200;

/// A program that dies so soon after a document was loaded may have died of it; after so many of these deaths, one
/// behind the other, a start waits so long.
var earlyDeath = 10000;
var earlyDeaths = 3;
var earlyDeathPause = 60000;

/// After a project's document came on the screen, its still is taken.
var firstStill = 8000;
/// For a still that is taken beside the screen: until pictures are loaded, and until the still is taken and written.
var stillLoads = 3000;
var stillIsTaken = 1000;

/// How long a line at a page's foot stays.
var footerMessage = 5000;

/// The full screen is asked for at these intervals, this often.
var fullScreenInterval = 5000;
var fullScreenRounds = 24;

/// Without a cloud there is nobody to log in: so long the login page says so before the start screen opens.
var startWithoutAccount = 10000;

/// What a busy indicator gets to be drawn before work that blocks.
var drawFirst = 10;
