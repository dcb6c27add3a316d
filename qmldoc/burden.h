// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// What it takes to make a document, as far as its source tells. A value.
struct Burden
{
    int characters = 0; ///< of the source, in UTF-16 code units
    double objects =
        0;        ///< that are made: those in repeaters as often as their models, written as numbers, say
    int line = 0; ///< 1-based, of the first repeater that makes more than half of them; 0 without one
};

/// The burden of `source`; of one that does not parse, only its length is known.
Burden burdenOf(const QString& source);
