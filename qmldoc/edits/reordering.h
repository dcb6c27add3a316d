// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/edits/passage.h"

/// The edits that move objects of one body or list, by their indices in the passage's outline and in the
/// given order, before the first other one at or behind `before`; behind all when that is -1.
///
/// Objects change places; what stands between them stays. So moving back gives the same bytes. Where all that
/// move have their lines for themselves, the comments right above and behind each go with it.
std::vector<SourceEdit> reorderingEdits(const Passage& passage, const std::vector<int>& moving, int before);
