// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <vector>

/// `source` with the members that the editor adds to an object put in at each of `positions`: a property
/// `element`, numbered upward from `firstElement`, and a function `evaluate`, which runs a script in the
/// object's scope.
///
/// `positions` are UTF-16 offsets of closing braces, ascending.
QString editorText(const QString& source, const std::vector<int>& positions, int firstElement);
