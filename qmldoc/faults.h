// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/outline.h"
#include "qmldoc/textplace.h"

#include <QVector>

/// What is wrong with a document, and where in its source. A value.
struct Fault
{
    TextPlace place;
    QString message; ///< in words
};

/// What keeps the document `outline` from being edited, as far as its source tells: it does not parse, is too
/// long or nests too deep, or one of its objects has a member of its own by a name that the editor needs.
/// Empty when nothing does; whether the engine takes it is another question.
QVector<Fault> faultsInSource(const Outline& outline);

/// Where in `source` stands what the engine calls `place` of `text`, the text made of the source that it was
/// handed: its editor text, thinned or not, or the source itself. A place without a column is that of the
/// line's begin.
TextPlace sourcePlace(const QString& source, const QString& text, TextPlace place);
