// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/highlighter/qmltokenizer.h"

#include "quick/highlighter/qmlwords.h"

#include <array>
#include <limits>

namespace {

enum class CharClass : quint8 { Other, Space, Digit, Letter, Quote, Slash, Bracket };

CharClass classify(QChar ch)
{
    if (ch.isSpace())
        return CharClass::Space;
    if (ch.isDigit())
        return CharClass::Digit;
    if (ch.isLetter() || ch == QLatin1Char('_'))
        return CharClass::Letter;
    switch (ch.unicode()) {
    case '"':
    case '\'':
        return CharClass::Quote;
    case '/':
        return CharClass::Slash;
    case '(':
    case ')':
    case '{':
    case '}':
    case '[':
    case ']':
        return CharClass::Bracket;
    default:
        return CharClass::Other;
    }
}

std::array<CharClass, 128> classifyAscii()
{
    std::array<CharClass, 128> table{};
    for (size_t i = 0; i < table.size(); ++i)
        table[i] = classify(QChar(ushort(i)));
    return table;
}

CharClass classOf(QChar ch)
{
    static const std::array<CharClass, 128> ascii = classifyAscii();
    return ch.unicode() < ascii.size() ? ascii[ch.unicode()] : classify(ch);
}

/// Walks one line token by token; each function takes what begins at the cursor.
class LineScanner
{
public:
    LineScanner(QStringView line, int depth, LineTokens& tokens)
        : m_line(line)
        , m_depth(depth)
        , m_tokens(tokens)
    {
    }

    void comment(int textStart);
    void scan();
    int state() const { return lineState(m_depth, m_inComment ? LineState::Comment : LineState::Start); }

private:
    void token();
    void number();
    void word();
    void slash();
    void literal();
    void bracket();
    /// Adds the run from `start` to the cursor.
    void add(int start, TokenClass kind);
    QChar at(int i) const { return i < m_line.size() ? m_line[i] : QChar(); }

    QStringView m_line;
    int m_pos = 0;
    int m_depth;
    bool m_inComment = false;
    LineTokens& m_tokens;
};

void LineScanner::scan()
{
    while (m_pos < m_line.size())
        token();
}

void LineScanner::token()
{
    switch (classOf(m_line[m_pos])) {
    case CharClass::Space:
        ++m_pos;
        break;
    case CharClass::Digit:
        number();
        break;
    case CharClass::Letter:
        word();
        break;
    case CharClass::Quote:
        literal();
        break;
    case CharClass::Slash:
        slash();
        break;
    case CharClass::Bracket:
        bracket();
        break;
    case CharClass::Other:
        ++m_pos;
        add(m_pos - 1, TokenClass::Operator);
        break;
    }
}

void LineScanner::add(int start, TokenClass kind)
{
    if (m_pos > start)
        m_tokens.runs.append({start, m_pos - start, kind});
}

void LineScanner::number()
{
    const int start = m_pos;
    while (m_pos < m_line.size() && classOf(m_line[m_pos]) == CharClass::Digit)
        ++m_pos;
    add(start, TokenClass::Number);
}

void LineScanner::word()
{
    const int start = m_pos;
    for (; m_pos < m_line.size(); ++m_pos) {
        const CharClass kind = classOf(m_line[m_pos]);
        if (kind != CharClass::Letter && kind != CharClass::Digit)
            break;
    }
    const TokenClass kind = classifyWord(m_line.mid(start, m_pos - start));
    if (kind != TokenClass::Plain)
        add(start, kind);
}

void LineScanner::slash()
{
    const int start = m_pos;
    if (at(m_pos + 1) == QLatin1Char('*')) {
        m_pos += 2;
        comment(start);
    } else if (at(m_pos + 1) == QLatin1Char('/')) {
        m_pos = int(m_line.size());
        add(start, TokenClass::Comment);
    } else {
        literal();
    }
}

void LineScanner::comment(int textStart)
{
    while (m_pos < m_line.size() && !(m_line[m_pos] == QLatin1Char('*') && at(m_pos + 1) == QLatin1Char('/')))
        ++m_pos;
    m_inComment = m_pos >= m_line.size();
    if (!m_inComment)
        m_pos += 2;
    add(textStart, TokenClass::Comment);
}

/// A string or regular expression, which ends at the next character like its first one.
void LineScanner::literal()
{
    const int start = m_pos++;
    while (m_pos < m_line.size() &&
           (m_line[m_pos] != m_line[start] || m_line[m_pos - 1] == QLatin1Char('\\')))
        ++m_pos;
    if (m_pos >= m_line.size())
        return;
    ++m_pos;
    add(start, TokenClass::String);
}

void LineScanner::bracket()
{
    if (m_line[m_pos] == QLatin1Char('{'))
        ++m_depth;
    else if (m_line[m_pos] == QLatin1Char('}'))
        --m_depth;
    m_tokens.brackets.append(m_pos++);
}

} // namespace

int lineState(int depth, LineState state)
{
    constexpr int most = std::numeric_limits<int>::max() >> lineStateBits;
    return qBound(-most, depth, most) * (1 << lineStateBits) + int(state);
}

void tokenizeQmlLine(QStringView line, int previousState, LineTokens& tokens)
{
    tokens.runs.clear();
    tokens.brackets.clear();
    const int previous = qMax(previousState, 0);
    LineScanner scanner(line, previous >> lineStateBits, tokens);
    if (LineState(previous & ((1 << lineStateBits) - 1)) == LineState::Comment)
        scanner.comment(0);
    scanner.scan();
    tokens.state = scanner.state();
}
