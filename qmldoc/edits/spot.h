// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/edits/passage.h"

/// Where objects come into a body, and what goes around them so that they stand there as if written by hand.
/// A value.
struct Spot
{
    int begin;
    int end;            ///< blanks in [begin, end) go
    QString before;     ///< of each object
    QString behind;     ///< of each object
    QString behindLast; ///< of the last one
    QString indentation;

    /// The edit that puts the source of an object here, one of several that come in that order.
    SourceEdit edit(const QString& code, bool isFirst, bool isLast) const;
};

/// Before `sibling`, an object by its index in the passage's outline: on lines of its own, or on its line
/// when it has none for itself.
Spot spotBefore(const Passage& passage, int sibling);

/// Behind all that the object `parent` holds, on lines of its own.
Spot spotAtEnd(const Passage& passage, int parent);
