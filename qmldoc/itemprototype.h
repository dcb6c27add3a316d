// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The QML text that a component proposes for a fresh instance of itself: what stands between the first two
/// double quotes after "cPrototype" in the component's source `text`. Nothing is unescaped.
///
/// Empty when there is no "cPrototype". Without a closing quote the text runs to the end; without any quote
/// after "cPrototype" it is the start of `text` up to its first double quote, or all of it.
QString itemPrototype(const QString& text);
