// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/editingsession.h"

#include "qmldoc/limits.h"

#include <algorithm>

namespace {

int savedStates = 0; // of all sessions of the process

// The length of [beg, end); -1 when `end` comes first.
int length(int beg, int end)
{
    return int(std::clamp(qint64(end) - beg, qint64(-1), qint64(INT_MAX)));
}

} // namespace

EditingSession::EditingSession(Writer writer)
    : m_writer(std::move(writer))
    , m_history(limits::initialHistoryCapacity)
{
}

QString EditingSession::editorVersion()
{
    return QStringLiteral("editor05.qml");
}

void EditingSession::begin(const QString& source)
{
    m_source = source;
    m_history.reset(limits::historyCapacity);
    m_history.push(m_source);
}

QString EditingSession::source(int beg, int end) const
{
    return m_source.mid(beg, length(beg, end));
}

void EditingSession::replace(int beg, int end, const QString& text)
{
    m_source.replace(beg, std::max(0, length(beg, end)), text);
}

int EditingSession::position(const QString& text, int from) const
{
    return m_source.indexOf(text, std::max(0, from));
}

int EditingSession::previousPosition(const QString& text, int from) const
{
    const int last = std::min(from, m_source.size() - text.size());
    return last < 0 ? -1 : m_source.lastIndexOf(text, last);
}

void EditingSession::saveState()
{
    if (++savedStates % limits::statesPerSafetyCopy == 0)
        m_writer(m_source, QStringLiteral("main.savestatus"));
    m_history.push(m_source);
}

QString EditingSession::backward()
{
    if (!m_history.isEmpty())
        m_source = m_history.undo();
    return m_source;
}

QString EditingSession::forward()
{
    if (!m_history.isEmpty())
        m_source = m_history.redo();
    return m_source;
}

QString EditingSession::generateEditor(const QString& text, int firstElement)
{
    if (text.isEmpty()) {
        m_document.parse(m_source, 0);
    } else {
        m_generatedFrom = text;
        m_document.parse(m_generatedFrom, firstElement);
    }
    return m_document.generatedText();
}

QVariantList EditingSession::parseAndGetMap(const QString& text)
{
    QmlDocument document;
    document.parse(text, 0);
    return document.itemMap();
}
