// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
#pragma once

class QQmlPropertyMap;

/// The icons of the FontAwesome 4.0 font: 371 entries, icon name with the prefix "fa-" to a QChar, the
/// glyph's code point in the private-use range U+F000 to U+F196. Names are those of release 4.0; later
/// releases of the font keep the glyphs under their code points, save that "fa-expand-o" and
/// "fa-collapse-o" are blank. Built once, process-wide, owned here. GUI thread.
QQmlPropertyMap* iconTable();

/// Starts building the icon table on another thread, so that the first iconTable() finds it done: each entry
/// makes the property map renew its meta-object, which adds up to tens of milliseconds. Optional, once,
/// before the first iconTable(); it may precede the application object. GUI thread.
void prepareIconTable();
