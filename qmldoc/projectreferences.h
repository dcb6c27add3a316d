// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

/// A media file or font that a QML document names by a literal.
struct ProjectReference
{
    enum Kind { Media, Font };

    Kind kind;
    QString name; ///< the literal: a path or URL, or a font family
    int line;     ///< 1-based
};

/// The references of one document, in the order of its text: string literals bound to "source" and its like,
/// or to a font's family. Bound expressions are left out. Empty when the text does not parse.
QVector<ProjectReference> projectReferences(const QString& source);
