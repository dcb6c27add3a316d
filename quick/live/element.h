// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

class QObject;
class QQuickItem;
struct QMetaObject;

/// The number that the editor has given to an item of the document; -1 when it has none. GUI thread.
int elementOf(const QQuickItem& item);

/// The C++ class of an object. QObject::metaObject(), and what calls it, has the engine describe each object
/// that has members of its own, as all numbered ones have, at a cost of many times that of looking at it.
const QMetaObject& classOf(const QObject& object);
