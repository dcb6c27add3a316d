// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Limits of the panels.

/// How many of the document's colours a picker offers.
const usedColors = 16;
