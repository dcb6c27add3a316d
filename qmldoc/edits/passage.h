// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/edits/change.h"
#include "qmldoc/outline.h"

/// The part of a source that is parsed to judge a change: the text of one object, or the whole document. What
/// a change touches must lie in it. Offsets are those of the passage's text, but for those in a Change.
class Passage
{
public:
    /// The characters [begin, end) of `source`.
    Passage(const QString& source, int begin, int end);

    const QString& text() const { return m_text; }
    const Outline& outline() const { return m_outline; }
    /// Index, in the outline, of the object that begins at `offset` of the source; -1 when none does.
    int objectAt(int offset) const;

    /// What ends the lines of the source: CRLF, CR, or LF, also when there is but one line.
    QString lineEnd() const;
    /// `text`, lines of any end, with the source's line ends.
    QString withLineEnds(const QString& text) const;
    /// What stands before `offset` on its line, or behind the last ";" or "{" there, as blanks and tabs.
    QString indentation(int offset) const;
    /// The blanks and tabs at the begin of the line that holds `offset`.
    QString lineIndentation(int offset) const;
    /// Where the line begins that holds `offset`, if nothing but blanks stands between; else -1.
    int lineBegin(int offset) const;

    /// The change that `edits` make of the source, if the passage then still parses and holds what it held
    /// but for what the edits are meant to change.
    Change change(std::vector<SourceEdit> edits) const;
    /// The same; an edit that cannot be made as it is gets a line end at its end, where a comment in it or
    /// the lack of a semicolon calls for one.
    Change settledChange(std::vector<SourceEdit> edits) const;

private:
    bool isPossibleAlone(SourceEdit edit) const;

    const QString& m_source;
    int m_begin;
    QString m_text;
    Outline m_outline;
};
