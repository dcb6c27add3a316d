// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <vector>

/// Where a name stands in a document for something that scripts can reach by it alone: not as a member behind
/// a dot, nor as the name of a binding. A value.
struct NameUse
{
    enum Kind {
        Id,        ///< `id: name`
        Reference, ///< in a script
        Owner,     ///< in a script, before a dot or bracket
        Shorthand, ///< `{ name }` in a script: key and reference in one
        Declared,  ///< a property, signal, parameter, variable or function of that name
    };
    Kind kind;
    int offset; ///< 0-based, in UTF-16 code units
    int line;   ///< 1-based
};

/// Collects every use of `name` in `text`, in its order. False when the text is no document or its scripts
/// nest too deep to be read to the end.
bool findNameUses(const QString& text, const QString& name, std::vector<NameUse>& uses);
