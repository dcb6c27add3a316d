// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace limits {

/// How long the scripts of a document may run while it is made, and how much longer for each 1024 characters
/// of its text; and how long one expression may run that the editor evaluates.
constexpr std::chrono::milliseconds loadDeadline(5000);
constexpr std::chrono::milliseconds loadDeadlinePerKilobyte(10);
constexpr std::chrono::milliseconds expressionDeadline(2000);

/// How often one item is laid out anew until its size must have come to rest. A size that is nine tenths of
/// itself needs some 350 until it is nothing.
constexpr int layouts = 2000;

/// How often a document at rest is looked through for what began to move meanwhile.
constexpr std::chrono::milliseconds restPeriod(1000);

} // namespace limits
