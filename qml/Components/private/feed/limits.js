.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Limits and deadlines of what comes from network services. Times in milliseconds, sizes in bytes or characters.

/// Largest answer that is read, after decompression.
var answerBytes = 1048576;

/// How long an answer may take, from the first byte sent to the last one received.
var answerTime = 30000;

/// Pauses between two attempts after a failure: doubling, with jitter, for ever. A service may ask for a longer one.
var firstRetry = 5000;
var longestRetry = 300000;
var longestWish = 3600000;

/// How long an address must stand before it is asked, so that typing it is not a request a letter.
var settleTime = 300;

/// The shortest pause between two good answers.
var shortestPeriod = 60000;

/// Answers kept for the time without network: so many files, one to an address.
var keptAnswers = 64;

/// What is taken of one answer: entries, characters of a title and of a text.
var entries = 50;
var titleLength = 300;
var textLength = 1000;
/// Characters of marked-up text that are looked at for one text.
var markupLength = 65536;

/// Elements of a document that are looked at, and how deep they may be nested.
var xmlElements = 8000;
var xmlDepth = 64;
var xmlAttributes = 32;
