// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/edits/passage.h"

/// What a property is to be: `text`, the source of one value, for the property `name`, dotted for groups, of
/// the object that begins at `object` of the source.
struct PropertyValue
{
    int object;
    QString name;
    QString text;
};

/// The change that gives properties new values, all or none.
///
/// A value takes the place of the one that the object has, in a declaration, a binding, an object or list
/// bound, an object that is bound to one of its properties, or a group written as a block; a declaration
/// without a value gets one. A property that the object does not have is added to it, on a line of its own
/// behind its last property, or before its closing brace. Refused are values that are none or more than one,
/// and signals, which have none.
Change setProperties(const Passage& passage, const std::vector<PropertyValue>& values);
