.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Measures of the canvas. Lengths are in pixels of the screen, before the density is applied; times in milliseconds.

/// How far the document can be scaled.
const smallestScale = 0.1;
const largestScale = 10;

/// What stays free around a document that is fitted in.
const fitMargin = 40;

/// How far the pointer goes before a press becomes a drag, and how near a place must be to be snapped to.
const dragDistance = 4;
const snapReach = 6;

/// Edge of a handle as it is seen, and as it is hit, by mouse and by finger; sides shorter than `shortSide` have no
/// handle in their middle.
const handleEdge = { mouse: 9, touch: 14 };
const handleReach = { mouse: 17, touch: 44 };
const shortSide = { mouse: 44, touch: 88 };

/// The share of an item's side that a handle covers at most; the rest of it lies outside.
const handleShare = 0.25;
