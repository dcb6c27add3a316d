// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/edits/passage.h"

/// What objects that are taken out leave of their lines.
enum class Lines {
    Kept,
    EmptyGo, ///< a line without anything but blanks goes too
};

/// Why the objects, by their indices in the passage's outline, cannot be taken out; empty when they can.
QString removalFault(const Passage& passage, const std::vector<int>& objects);

/// The edits that take the objects out; of a list, with the commas that part them from what stays. The last
/// one of a declared list takes the list with it, which may not be empty.
std::vector<SourceEdit> removalEdits(const Passage& passage, const std::vector<int>& objects, Lines lines);
