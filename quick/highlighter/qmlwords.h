// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quick/highlighter/tokenclass.h"

#include <QSet>
#include <QString>

/// The four word sets of the QML highlighter, exact and case-sensitive. Built once a process and never
/// changed; any thread may read them.
struct QmlWords
{
    QSet<QString> keywords;      ///< 37 words of the language
    QSet<QString> knownIds;      ///< 128 names built into JavaScript
    QSet<QString> qmlTypes;      ///< 263 element types: Qt's, the component library's, the widget set's
    QSet<QString> qmlProperties; ///< 101 common properties and handlers

    static const QmlWords& instance();
};

/// Class of an identifier: TokenClass::Plain when no set holds it. A word of several sets takes the first of
/// keywords, known ids, types, properties. Any thread.
TokenClass classifyWord(QStringView word);
