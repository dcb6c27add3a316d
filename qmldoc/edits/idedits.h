// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/edits/passage.h"

/// The change that gives the object that begins at `object` of the source the id `name`, and all references
/// to its old id with it. The passage is the whole document.
///
/// Refused, with the lines, when the name is used in the document already, and when something there may or
/// may not mean the old id: a variable, parameter or property of that name, or a bare name in a delegate,
/// where the model's roles come first. Refused are names that the engine does not take for an id.
Change renameId(const Passage& document, int object, const QString& name);

/// `code`, the source of objects that come into `document`, with ids of its own in place of those that the
/// document has: a number is added. References in `code` follow; what may mean something else stays as it is.
QString withFreshIds(const QString& code, const Outline& document);
