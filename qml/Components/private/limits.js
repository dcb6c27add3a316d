.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Limits and deadlines of the components. Times in milliseconds, lengths in pixels.

/// Longest edge of a decoded picture.
var pictureEdge = 8192;

/// Longest edge of a text that is drawn with an effect; some drivers end the program where a texture is too large.
var effectEdge = 4096;

/// Pauses between two attempts to get a picture or a video that failed: doubling, with jitter, for ever.
var firstRetry = 1000;
var longestRetry = 60000;

/// How far a file's time may lie behind the clock: the kernel stamps files with its last tick.
var fileClockTick = 12;

/// How long before its turn a slide is loaded.
var slideLead = 3000;

/// How long a turn waits for a slide that is still loading.
var slidePatience = 10000;

/// What a slide without a usable duration gets, and the least that any slide is shown beyond its transition.
var slideDuration = 5000;
var shortestSlide = 200;

/// A clock looks at the time at least this often, so that it follows when the computer's clock is set.
var clockLookup = 60000;

/// A menu shows at most so many entries: it measures each before it shows the first.
var menuEntries = 1000;
