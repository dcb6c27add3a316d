// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/editinghistory.h"
#include "qmldoc/qmldocument.h"

#include <functional>

/// One editing run: the source text being edited, its history, and the document last generated from.
///
/// Positions are 0-based offsets in UTF-16 code units; positions outside the text are clipped. The session
/// never shifts positions of an item map: whoever edits does. GUI thread.
class EditingSession
{
public:
    /// Writes `text` to the file `fileName` of the project; false on failure.
    using Writer = std::function<bool(const QString& text, const QString& fileName)>;

    /// `writer` is called for safety copies of the source.
    explicit EditingSession(Writer writer);
    Q_DISABLE_COPY(EditingSession)

    /// File name of the editing frame in a project.
    static QString editorVersion();

    /// Starts over with `source`, which becomes the first state of the history.
    void begin(const QString& source);
    /// Replaces the source; the history is left alone.
    void setSource(const QString& source) { m_source = source; }
    QString source() const { return m_source; }
    /// The characters [beg, end); all from `beg` on when `end` comes before it.
    QString source(int beg, int end) const;
    /// Puts `text` in place of the characters [beg, end); inserts when `end` is not behind `beg`. Does
    /// nothing when `beg` is outside the text.
    void replace(int beg, int end, const QString& text);
    /// Offset of the first `text` at or after `from`; -1 when there is none. Case counts.
    int position(const QString& text, int from = 0) const;
    /// Offset of the last `text` that starts at or before `from`; -1 when there is none. Case counts.
    int previousPosition(const QString& text, int from = 0) const;

    /// Records the source as a state. Every tenth call in this process also writes it to "main.savestatus".
    void saveState();
    /// Undo: makes the next older state the source and returns it; the source as it is while nothing is
    /// recorded.
    QString backward();
    /// Redo: makes the next newer state the source and returns it; the source as it is while nothing is
    /// recorded.
    QString forward();
    /// Nothing to redo.
    bool isNewest() const { return m_history.isNewest(); }
    /// Nothing to undo.
    bool isOldest() const { return m_history.isOldest(); }

    /// Parses `text`, numbering from `firstElement`, or the source, numbering from 0, when `text` is empty.
    /// Returns the text to instantiate in the editor; the text unchanged when it is no QML document.
    QString generateEditor(const QString& text = QString(), int firstElement = 0);
    /// Item map of the text of the last generateEditor(); see QmlDocument::itemMap(). Values are cut from the
    /// text as it is now, so nothing may be edited in between. After a parse that failed, the records are
    /// those of the one before.
    QVariantList getMap() { return m_document.itemMap(); }
    /// Item map of `text`; empty when it is no QML document. No session is touched.
    static QVariantList parseAndGetMap(const QString& text);

private:
    Writer m_writer;
    QString m_source;
    QString m_generatedFrom; // outlives the document's next parse
    EditingHistory m_history;
    QmlDocument m_document;
};
