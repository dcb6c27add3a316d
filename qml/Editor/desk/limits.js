.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Times in milliseconds, lengths of texts in characters.

/// How long messages stay: why a source was not taken, that something was done, and what else there is to say.
const faultMessage = 10000;
const doneMessage = 1000;
const message = 4000;

/// Longest text that is pasted; longest source, and longest line of one, that is shown as text.
const longestPaste = 1000000;
const longestSource = 1000000;
const longestLine = 20000;

/// A document that takes long to show: so many objects, or characters of source.
const largeCount = 8000;
const largeDocument = 2000000;

/// Pixels between an item and its copy.
const duplicateGap = 16;

/// How long arrow keys rest before what they moved counts as one change.
const burstPause = 700;
