.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Times in milliseconds, lengths of texts in characters.

/// How long messages stay: why a source was not taken, that something was done, and what else there is to say.
const faultMessage = 10000;
const doneMessage = 1000;
const message = 4000;

/// Longest text that is pasted, and a document from which on opening takes noticeable time.
const longestPaste = 1000000;
const largeDocument = 400000;

/// Pixels between an item and its copy.
const duplicateGap = 16;

/// How long arrow keys rest before what they moved counts as one change.
const burstPause = 700;
