// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

/// The states of a text for undo and redo: a ring of slots.
///
/// A push after undo steps overwrites the state after the current one and makes the current one the newest:
/// states ahead are not dropped, and the number of states still grows by one. Undo can therefore reach a slot
/// that nobody filled: its state is the empty text.
class EditingHistory
{
public:
    explicit EditingHistory(int capacity);

    /// Forgets all states and makes room for `capacity` of them (at least 1).
    void reset(int capacity);
    /// Records `text` as the newest state, which becomes the current one.
    void push(const QString& text);
    /// Moves to the next older state, if there is one, and returns the current state; null when nothing is
    /// recorded.
    QString undo();
    /// Moves to the next newer state, if there is one, and returns the current state; null when nothing is
    /// recorded.
    QString redo();

    bool isEmpty() const { return m_head < 0; }
    /// Number of states recorded, at most the capacity.
    int count() const { return m_count; }
    /// Nothing to redo. True while nothing is recorded.
    bool isNewest() const { return m_position == m_count; }
    /// Nothing to undo. False while nothing is recorded.
    bool isOldest() const { return m_position == 1; }

private:
    QString current() const { return isEmpty() ? QString() : m_slots.at(m_head); }

    QVector<QString> m_slots;
    int m_count = 0;
    int m_head = -1;    // slot of the current state
    int m_position = 0; // 1 is the oldest state, m_count the newest
};
