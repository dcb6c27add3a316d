// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariant>

/// A QML document made at random, with what the program must find in it. The generator knows because it
/// writes down where it put what; it parses nothing.
struct GeneratedDocument
{
    QString text;
    QVariantList map;   ///< the item map
    QString editorText; ///< the text with the editor's members, numbered from 0
};

enum class Flavour {
    Parses,       ///< any construct, any names: a QML parser takes it
    Instantiates, ///< real types and properties: a QML engine makes an object of it
};

/// The same seed gives the same document.
GeneratedDocument generateDocument(unsigned seed, Flavour flavour);
