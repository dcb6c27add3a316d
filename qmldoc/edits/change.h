// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariantList>

#include <vector>

/// One replacement in a source: `text` in place of the characters [begin, end). A value.
///
/// Offsets are those of the text before any replacement of its change, so that several can be planned against
/// the same text. It says what it brings into the object around it, so that the change can be judged.
struct SourceEdit
{
    int begin = 0;
    int end = 0;
    QString text;
    int members = 0;   ///< declarations, bindings, functions
    int objects = 0;   ///< objects, without those within them
    int headLines = 0; ///< imports
    int movedBegin =
        -1; ///< where the objects in `text` stood before, [movedBegin, movedEnd); -1 when they are new
    int movedEnd = -1;
};

/// A change of a source that can be made, or the reason why it cannot. A value.
struct Change
{
    static Change refused(const QString& reason) { return {reason, {}, {}, {}}; }

    bool isPossible() const { return refusal.isEmpty(); }

    QString refusal;               ///< in words; empty when the change can be made
    std::vector<SourceEdit> edits; ///< in the order of the text, none within another
    std::vector<QVariantList>
        objects;          ///< for each edit, the new records of the objects in its text, as in an item map
    QVariantList records; ///< the new records of the numbered objects whose members the edits touch
};

/// `text` with `edits` made, which are in the order of the text and none within another.
QString edited(const QString& text, const std::vector<SourceEdit>& edits);
