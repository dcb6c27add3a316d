// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/conduct.h"
#include "localcloud/http/message.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace localcloud {

/// One request from its head to its answer. When the connection ends early it is destroyed without finish().
///
/// Each function may throw; a Refusal is the answer, anything else a failure of this server.
class Exchange
{
public:
    virtual ~Exchange() = default;

    /// False when the body does not matter; a client that asks first is then not asked for it.
    virtual bool wantsBody() const { return true; }
    /// Takes the next piece of the body.
    virtual void take(std::string_view piece) = 0;
    /// The answer, once the body is whole. Called once, last.
    virtual Answer finish() = 0;
};

/// Keeps the body in memory, up to a limit, and hands it to a function.
class CollectingExchange : public Exchange
{
public:
    using Respond = std::function<Answer(const std::string& body)>;

    /// A body of more than `limit` bytes is refused with `tooLarge`.
    CollectingExchange(std::size_t limit, Answer tooLarge, Respond respond);

    void take(std::string_view piece) override;
    Answer finish() override;

private:
    std::size_t m_limit;
    Answer m_tooLarge;
    Respond m_respond;
    std::string m_body;
};

/// An answer that is certain before the body came. A short body is read all the same, so that the connection
/// can be kept.
class ReadyExchange : public Exchange
{
public:
    explicit ReadyExchange(Answer answer);

    bool wantsBody() const override { return false; }
    void take(std::string_view piece) override;
    Answer finish() override;

private:
    Answer m_answer;
    std::int64_t m_discarded = 0;
};

/// What becomes of a request, and how the connection behaves meanwhile.
struct Handling
{
    std::unique_ptr<Exchange> exchange;
    Conduct conduct;
};

/// Whatever stands behind the connections.
class RequestHandler
{
public:
    virtual ~RequestHandler() = default;

    /// Called once for each request when its head is there. Does not throw.
    virtual Handling begin(const RequestHead& head) = 0;
    /// Called about once a second.
    virtual void tick() = 0;
    /// Called when a connection was accepted and when one has ended.
    virtual void connectionOpened() = 0;
    virtual void connectionClosed() = 0;
};

} // namespace localcloud
