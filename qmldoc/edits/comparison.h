// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/edits/change.h"
#include "qmldoc/outline.h"

/// A text before and after its edits, laid side by side: where each character went, and whether the text
/// still holds what it held, at the same places. Refers to what it is made of.
class Comparison
{
public:
    /// `edits` are in the order of the text, none within another; `after` is the outline of the text with
    /// them made.
    Comparison(const Outline& before, const Outline& after, const std::vector<SourceEdit>& edits);

    /// Whether `after` has all objects and members of `before` but those in the replaced ranges, and of
    /// others just what the edits say that they bring.
    bool isAsMeant() const;

    /// The edit whose text holds the character at `offset` of the text after; -1 when it was there before.
    int editAt(int offset) const;
    /// The innermost numbered object of `after` around an edit; -1 when there is none.
    int itemAround(int edit) const;

private:
    struct Brought
    {
        int members = 0;
        int objects = 0;
    };

    int moved(int offset) const;
    bool isSame(const Outline::Member& before, const Outline::Member& after) const;
    bool isSameBody(const Outline::Member& before, const Outline::Member& after) const;
    bool isOutermost(const Outline::Member& member, int edit) const;
    bool bringsWhatItSays(const std::vector<Brought>& brought) const;

    const Outline& m_before;
    const Outline& m_after;
    const std::vector<SourceEdit>& m_edits;
    std::vector<int> m_begins; // of the edits' texts in the text after
};
