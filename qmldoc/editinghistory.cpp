// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/editinghistory.h"

#include <algorithm>

EditingHistory::EditingHistory(int capacity)
{
    reset(capacity);
}

void EditingHistory::reset(int capacity)
{
    m_slots = QVector<QString>(std::max(1, capacity));
    m_count = 0;
    m_head = -1;
    m_position = 0;
}

void EditingHistory::push(const QString& text)
{
    m_count = std::min(m_count + 1, m_slots.size());
    m_head = (m_head + 1) % m_count;
    m_slots[m_head] = text;
    m_position = m_count;
}

QString EditingHistory::undo()
{
    if (!isEmpty() && !isOldest()) {
        m_head = (m_head + m_count - 1) % m_count;
        --m_position;
    }
    return current();
}

QString EditingHistory::redo()
{
    if (!isNewest()) {
        m_head = (m_head + 1) % m_count;
        ++m_position;
    }
    return current();
}
