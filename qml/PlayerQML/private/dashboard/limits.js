.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Waits and periods of the dashboard, in milliseconds. Tests may set them.

/// How long a request to the account's database may take.
var requestDeadline = 30000;

/// How long a message stays.
var successMessage = 1000;
var failureMessage = 3000;

/// How often a wait looks at the clock.
var clockLook = 100;

/// A player that was heard of within this time is live.
var liveFor = 180000;

/// The account's players are read again, ages are shown anew, and screenshots are fetched again.
var refreshPeriod = 20000;
var agePeriod = 1000;
var picturePeriod = 600000;

/// A player that shows another project is asked for a screenshot after this time, when it should be whole; then after
/// times that double each time. Whether one has come is looked at with this pause.
var firstScreenshot = 8000;
var screenshotLook = 3000;

/// After so long without any progress an exchange is called silent.
var silence = 5000;

/// Keys in the filter field are gathered for this long before the tiles follow.
var typingPause = 120;
