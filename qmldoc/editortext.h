// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/outline.h"

/// `source` with the members that the editor adds put in before the closing brace of each numbered object: a
/// property `element`, numbered upward from `firstElement`, and a function `evaluate`, which runs a script in
/// the object's scope. `outline` is that of `source`.
QString editorText(const QString& source, const Outline& outline, int firstElement);

/// The same without what the QML engine does not bear: the functions, which take it quadratic time to
/// compile, and both members in groups (as `font { }`) and list elements, whose number goes unused: there
/// they are errors, or bring the engine down.
QString thinnedText(const QString& source, const Outline& outline, int firstElement);

/// Where in the source of `outline` stands what is at `offset` of `text`: its editor text, thinned or not, or
/// the source itself. What was put in counts as the closing brace behind it.
int sourceOffset(const Outline& outline, const QString& text, int offset);
