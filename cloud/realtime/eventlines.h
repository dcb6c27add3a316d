// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

/// Puts the events of a stream (WHATWG server-sent events) together again, which arrive in pieces of any
/// size.
class EventLines
{
public:
    /// The events that `chunk` completes: their lines, each ended by a line feed, and an empty line. Lines
    /// may have come with LF, CR or CRLF. An event larger than limits::eventBytes is left out, with a line in
    /// the log.
    QList<QByteArray> feed(const QByteArray& chunk);

private:
    void take(char byte);
    void endLine();

    QByteArray m_event;         // its complete lines
    int m_lineStart = 0;        // in m_event, of the line that has not ended yet
    bool m_tooLarge = false;    // the event is
    bool m_afterReturn = false; // the last byte was CR, perhaps half of a CRLF
    QList<QByteArray> m_complete;
};
