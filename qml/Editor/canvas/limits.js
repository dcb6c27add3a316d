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

/// Edge of a handle as it is seen, and as it is hit; sides shorter than this have no handle in their middle.
const handleEdge = 9;
const handleReach = 17;
const shortSide = 44;
