// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/outline.h"

#include <QVariantMap>

/// The item-map record of an object, by its index in `outline`: a map of "pfirst" (begin of the type name),
/// "pfirstL" (after the opening brace), "plast" (after the closing brace), "typename" (up to the first dot,
/// in Latin-1) and "properties" (see itemProperties()). `shift` is added to all offsets.
QVariantMap itemRecord(const Outline& outline, int object, const QString& source, int shift = 0);

/// Its properties, by name: maps of "value" (source text), "pfirst" (begin of the declaration or binding) and
/// "plast" (end of the value). Of two with the same name the later one counts. Values and names of bindings
/// are cut from `source`, the text as it is now.
QVariantMap itemProperties(const Outline& outline, int object, const QString& source, int shift = 0);

/// The name of a property in the item map: as it is declared, or what stands before the colon, without
/// blanks.
QString propertyName(const Outline& outline, const Outline::Member& property, const QString& source);
