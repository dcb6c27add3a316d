// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/answerwriter.h"
#include "localcloud/http/deadline.h"
#include "localcloud/http/eventwriter.h"
#include "localcloud/http/exchange.h"
#include "localcloud/http/requestbody.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/parser.hpp>

#include <memory>
#include <optional>

namespace localcloud {

/// One connection of a client: reads a request, has it answered, reads the next; or carries a stream to its
/// end.
///
/// Lives as long as something is pending on its socket. One thread.
class Connection : public std::enable_shared_from_this<Connection>
{
public:
    /// `log` gets a line for each answered request; may be empty.
    using Log = std::function<void(const std::string& line)>;

    Connection(boost::asio::ip::tcp::socket socket, RequestHandler& handler, Log log);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void start();
    /// Closes the socket when nothing happened on it for too long.
    void closeIfLate(Deadline::Clock::time_point now);
    void close();

private:
    using Error = boost::system::error_code;

    void awaitRequest();
    void readHead();
    void onHead(Error error);
    void begin();
    void askForBody();
    void readBody();
    void onBody(Error error);
    void endOfQuota();
    void act();
    void answer(Answer answer, bool keepAlive);
    void stream(const Answer& answer);
    void awaitEndOfStream();
    void lingerAndClose();
    void discard();
    void acknowledgeAtOnce();
    void pause(std::chrono::milliseconds time, std::function<void()> then);
    void report(int status, std::optional<std::int64_t> size) const;

    boost::asio::ip::tcp::socket m_socket;
    RequestHandler& m_handler;
    Log m_log;
    Deadline m_deadline;
    boost::asio::steady_timer m_pause;
    boost::beast::flat_buffer m_buffer;
    std::optional<boost::beast::http::request_parser<RequestBody>> m_parser; // of the request being read
    RequestHead m_head;
    Handling m_handling;
    AnswerWriter m_writer;
    std::unique_ptr<EventWriter> m_events; // of a stream
    std::unique_ptr<Subscription> m_subscription;
};

} // namespace localcloud
