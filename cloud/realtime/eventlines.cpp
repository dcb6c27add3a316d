// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/realtime/eventlines.h"

#include "cloud/limits.h"
#include "cloud/logging.h"

#include <utility>

QList<QByteArray> EventLines::feed(const QByteArray& chunk)
{
    for (const char byte : chunk)
        take(byte);
    return std::exchange(m_complete, {});
}

void EventLines::take(char byte)
{
    const bool endsCrLf = byte == '\n' && m_afterReturn;
    m_afterReturn = byte == '\r';
    if (endsCrLf)
        return;
    if (byte == '\n' || byte == '\r')
        endLine();
    else if (m_event.size() < limits::eventBytes)
        m_event += byte;
    else
        m_tooLarge = true;
}

// An empty line ends the event.
void EventLines::endLine()
{
    const bool isEmpty = m_event.size() == m_lineStart;
    m_event += '\n';
    m_lineStart = m_event.size();
    if (!isEmpty)
        return;
    if (m_tooLarge)
        qCWarning(lcCloud) << "An event of the realtime database is too large";
    else if (m_event.size() > 1)
        m_complete.append(m_event);
    m_event.clear();
    m_lineStart = 0;
    m_tooLarge = false;
}
