// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextBlockUserData>
#include <QVector>

/// What the highlighter remembers of one line of a document, which owns it.
class QMLBlockData : public QTextBlockUserData
{
public:
    /// Offsets within the line of the brackets ( ) { } [ ] found in it, ascending. A line keeps its last list
    /// when its last bracket goes.
    QVector<int> brackets;
};
