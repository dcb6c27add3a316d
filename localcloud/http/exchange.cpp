// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/http/exchange.h"

#include "localcloud/limits.h"

namespace localcloud {

CollectingExchange::CollectingExchange(std::size_t limit, Answer tooLarge, Respond respond)
    : m_limit(limit)
    , m_tooLarge(std::move(tooLarge))
    , m_respond(std::move(respond))
{
}

void CollectingExchange::take(std::string_view piece)
{
    if (piece.size() > m_limit - m_body.size())
        throw Refusal{std::move(m_tooLarge)};
    m_body.append(piece);
}

Answer CollectingExchange::finish()
{
    return m_respond(m_body);
}

ReadyExchange::ReadyExchange(Answer answer)
    : m_answer(std::move(answer))
{
}

void ReadyExchange::take(std::string_view piece)
{
    m_discarded += static_cast<std::int64_t>(piece.size());
    if (m_discarded > limits::discardedBytes)
        throw Refusal{std::move(m_answer)};
}

Answer ReadyExchange::finish()
{
    return std::move(m_answer);
}

} // namespace localcloud
