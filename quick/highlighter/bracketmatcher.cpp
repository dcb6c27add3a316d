// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/highlighter/bracketmatcher.h"

#include "quick/highlighter/qmlblockdata.h"
#include "quick/highlighter/qmltokenizer.h"

#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace {

constexpr QStringView openers = u"({[";
constexpr QStringView closers = u")}]";

/// The brackets of a line. A line whose last bracket went keeps its old list, so one look at the text tells
/// whether it has any.
QVector<int> bracketsOf(const QTextBlock& block)
{
    const auto* data = dynamic_cast<const QMLBlockData*>(block.userData());
    if (!data)
        return {};
    LineTokens tokens;
    tokenizeQmlLine(block.text(), block.previous().userState(), tokens);
    return tokens.brackets.isEmpty() ? QVector<int>() : data->brackets;
}

/// Stands at a bracket and moves from bracket to bracket across lines.
class BracketCursor
{
public:
    explicit BracketCursor(const QTextBlock& block) { enter(block); }

    bool seek(int position);
    bool step(bool forward);
    QChar bracket() const { return m_text.at(m_brackets.at(m_index)); }
    int position() const { return m_block.position() + m_brackets.at(m_index); }

private:
    void enter(const QTextBlock& block);

    QTextBlock m_block;
    QString m_text;
    QVector<int> m_brackets;
    int m_index = 0;
};

void BracketCursor::enter(const QTextBlock& block)
{
    m_block = block;
    m_text = block.text();
    m_brackets = bracketsOf(block);
}

bool BracketCursor::seek(int position)
{
    m_index = m_brackets.indexOf(position - m_block.position());
    return m_index >= 0;
}

/// False when there is no further bracket.
bool BracketCursor::step(bool forward)
{
    m_index += forward ? 1 : -1;
    while (m_index < 0 || m_index >= m_brackets.size()) {
        enter(forward ? m_block.next() : m_block.previous());
        if (!m_block.isValid())
            return false;
        m_index = forward ? 0 : m_brackets.size() - 1;
    }
    return true;
}

bool isOpener(QChar bracket)
{
    return openers.contains(bracket);
}

bool belongTogether(QChar one, QChar other)
{
    return isOpener(one) ? openers.indexOf(one) == closers.indexOf(other)
                         : closers.indexOf(one) == openers.indexOf(other);
}

} // namespace

int matchingBracket(const QTextDocument& document, int position)
{
    BracketCursor cursor(document.findBlock(position));
    if (!cursor.seek(position))
        return -1;
    const QChar first = cursor.bracket();
    const bool forward = isOpener(first);
    int depth = 0;
    do {
        depth += isOpener(cursor.bracket()) == forward ? 1 : -1;
    } while (depth > 0 && cursor.step(forward));
    return depth == 0 && belongTogether(first, cursor.bracket()) ? cursor.position() : -1;
}
