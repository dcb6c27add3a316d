// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/http/connection.h"

#include "localcloud/base/logging.h"
#include "localcloud/limits.h"

#include <boost/asio/write.hpp>
#include <boost/beast/http/read.hpp>

#include <netinet/tcp.h>
#include <sys/socket.h>

namespace localcloud {

namespace beast = boost::beast;
namespace http = boost::beast::http;

namespace {

Answer textAnswer(int status, std::string text)
{
    return {status, {{"Content-Type", "text/plain; charset=UTF-8"}}, std::move(text)};
}

// What a client gets for what went wrong in here. To be called while an exception is caught.
Answer answerOfException()
{
    try {
        throw;
    } catch (Refusal& refusal) {
        return std::move(refusal.answer);
    } catch (const std::exception& exception) {
        logLine(exception.what());
        return jsonAnswer(503, R"({"error":{"code":503,"message":"Backend error","errors":[)"
                               R"({"message":"Backend error","domain":"global","reason":"backendError"}]}})");
    }
}

// Tells bytes that are no request from a connection that ended.
bool isMalformed(boost::system::error_code error)
{
    return error && error.category() == make_error_code(http::error::bad_method).category() &&
           error != http::error::end_of_stream && error != http::error::partial_message;
}

RequestHead headOf(const http::request_header<>& fields, Target target)
{
    RequestHead head;
    head.method = std::string(fields.method_string());
    head.rawTarget = std::string(fields.target());
    head.target = std::move(target);
    for (const auto& field : fields)
        head.headers.add(std::string(field.name_string()), std::string(field.value()));
    return head;
}

} // namespace

Connection::Connection(boost::asio::ip::tcp::socket socket, RequestHandler& handler, Log log)
    : m_socket(std::move(socket))
    , m_handler(handler)
    , m_log(std::move(log))
    , m_pause(m_socket.get_executor())
    , m_buffer(limits::pieceBytes)
    , m_writer(m_socket, m_deadline)
{
    m_handler.connectionOpened();
}

Connection::~Connection()
{
    m_handler.connectionClosed();
}

void Connection::start()
{
    Error ignored;
    m_socket.set_option(boost::asio::ip::tcp::no_delay(true), ignored);
    m_socket.native_non_blocking(true, ignored);
    awaitRequest();
}

void Connection::closeIfLate(Deadline::Clock::time_point now)
{
    if (m_deadline.passed(now))
        close();
}

void Connection::close()
{
    Error ignored;
    m_pause.cancel(ignored);
    m_socket.close(ignored);
}

// --------------------------------------------------------------------------------------------- reading

void Connection::awaitRequest()
{
    if (m_buffer.size() > 0)
        return readHead();
    m_buffer.shrink_to_fit();
    m_deadline.in(limits::idle);
    m_socket.async_wait(boost::asio::socket_base::wait_read, [self = shared_from_this()](Error error) {
        if (!error)
            self->readHead();
    });
}

void Connection::readHead()
{
    m_deadline.in(limits::head);
    m_head = {};
    m_handling = {};
    m_parser.emplace();
    m_parser->header_limit(limits::headBytes);
    m_buffer.reserve(limits::usualHeadBytes);
    m_parser->body_limit(std::numeric_limits<std::uint64_t>::max()); // each exchange has its own
    http::async_read_header(m_socket, m_buffer, *m_parser,
                            [self = shared_from_this()](Error error, std::size_t) { self->onHead(error); });
}

void Connection::onHead(Error error)
{
    if (error == http::error::header_limit)
        return answer(textAnswer(431, "The request's head is too large.\n"), false);
    if (isMalformed(error))
        return answer(textAnswer(400, "This is no HTTP request.\n"), false);
    if (error)
        return close();
    const http::request_header<>& fields = m_parser->get();
    std::optional<Target> target = Target::parse({fields.target().data(), fields.target().size()});
    if (!target)
        return answer(textAnswer(400, "The request's target is not a well-formed path.\n"), false);
    m_head = headOf(fields, std::move(*target));
    begin();
}

void Connection::begin()
{
    m_handling = m_handler.begin(m_head);
    RequestBody::value_type& body = m_parser->get().body();
    const Conduct& conduct = m_handling.conduct;
    body.exchange = m_handling.exchange.get();
    if (conduct.requestCutAfter)
        body.quota = *conduct.requestCutAfter;
    else if (conduct.requestStallAfter)
        body.quota = *conduct.requestStallAfter;
    if (beast::iequals(m_parser->get()[http::field::expect], "100-continue"))
        askForBody();
    else
        readBody();
}

// The client waits to be told whether its body is wanted.
void Connection::askForBody()
{
    if (!m_handling.exchange->wantsBody())
        return answer(m_handling.exchange->finish(), false);
    static const std::string go = "HTTP/1.1 100 Continue\r\n\r\n";
    boost::asio::async_write(m_socket, boost::asio::buffer(go),
                             [self = shared_from_this()](Error error, std::size_t) {
                                 if (!error)
                                     self->readBody();
                             });
}

void Connection::readBody()
{
    if (m_parser->is_done())
        return act();
    if (m_parser->chunked() || m_parser->content_length_remaining().value_or(0) > limits::headBytes)
        m_buffer.reserve(limits::pieceBytes);
    m_deadline.in(limits::body);
    acknowledgeAtOnce();
    http::async_read_some(m_socket, m_buffer, *m_parser,
                          [self = shared_from_this()](Error error, std::size_t) { self->onBody(error); });
}

void Connection::onBody(Error error)
{
    const RequestBody::value_type& body = m_parser->get().body();
    if (body.quotaReached)
        return endOfQuota();
    if (!error)
        return readBody();
    m_handling.exchange.reset();
    if (!body.failure)
        return close();
    try {
        std::rethrow_exception(body.failure);
    } catch (...) {
        answer(answerOfException(), false);
    }
}

void Connection::endOfQuota()
{
    m_handling.exchange.reset();
    if (m_handling.conduct.requestCutAfter)
        return close();
    m_deadline.never();
    pause(limits::stall, [this] { close(); });
}

// Without this, a client that sends head and body apart waits 40 ms for the acknowledgement of its head.
void Connection::acknowledgeAtOnce()
{
    const int on = 1;
    ::setsockopt(m_socket.native_handle(), IPPROTO_TCP, TCP_QUICKACK, &on, sizeof on);
}

// ------------------------------------------------------------------------------------------- answering

void Connection::act()
{
    const Conduct& conduct = m_handling.conduct;
    if (conduct.drop == Conduct::Drop::BeforeAction)
        return close();
    Answer result;
    try {
        result = m_handling.exchange->finish();
    } catch (...) {
        result = answerOfException();
    }
    m_handling.exchange.reset();
    if (conduct.drop == Conduct::Drop::AfterAction)
        return close();
    result.headOnly = m_head.method == "HEAD";
    if (conduct.delay.count() == 0)
        return answer(std::move(result), m_parser->keep_alive());
    m_deadline.never();
    const auto kept = std::make_shared<Answer>(std::move(result));
    pause(conduct.delay, [this, kept] { answer(std::move(*kept), m_parser->keep_alive()); });
}

void Connection::answer(Answer answer, bool keepAlive)
{
    report(answer.status, answer.length());
    if (std::holds_alternative<EventStream>(answer.body))
        return stream(answer);
    const bool wholeRequest = m_parser->is_done();
    m_writer.send(std::move(answer), keepAlive, m_handling.conduct,
                  [self = shared_from_this(), wholeRequest](bool reusable) {
                      if (reusable)
                          self->awaitRequest();
                      else if (wholeRequest)
                          self->close();
                      else
                          self->lingerAndClose();
                  });
}

void Connection::stream(const Answer& answer)
{
    m_buffer.clear();
    m_buffer.shrink_to_fit();
    m_events = std::make_unique<EventWriter>(m_socket, m_deadline, weak_from_this(), m_handling.conduct,
                                             answer.head(true));
    m_parser.reset();
    try {
        m_subscription = std::get<EventStream>(answer.body)(*m_events);
    } catch (...) {
        answerOfException();
        m_events->end();
    }
    awaitEndOfStream();
}

// A stream's client has nothing more to say; what can be read is its end.
void Connection::awaitEndOfStream()
{
    m_socket.async_read_some(m_buffer.prepare(limits::strayBytes),
                             [self = shared_from_this()](Error error, std::size_t) {
                                 if (!error)
                                     return self->awaitEndOfStream();
                                 self->m_subscription.reset();
                                 self->close();
                             });
}

// Closing with unread input would reset the connection and could destroy the answer on its way.
void Connection::lingerAndClose()
{
    Error ignored;
    m_socket.shutdown(boost::asio::socket_base::shutdown_send, ignored);
    m_deadline.in(limits::linger);
    discard();
}

void Connection::discard()
{
    m_buffer.clear();
    m_socket.async_read_some(m_buffer.prepare(limits::pieceBytes),
                             [self = shared_from_this()](Error error, std::size_t) {
                                 if (error)
                                     self->close();
                                 else
                                     self->discard();
                             });
}

void Connection::pause(std::chrono::milliseconds time, std::function<void()> then)
{
    m_pause.expires_after(time);
    m_pause.async_wait([self = shared_from_this(), then = std::move(then)](Error error) {
        if (!error)
            then();
    });
}

// Never the query: it holds credentials.
void Connection::report(int status, std::optional<std::int64_t> size) const
{
    if (!m_log)
        return;
    m_log(m_head.method + " " + m_head.target.path + " " + std::to_string(status) + " " +
          (size ? std::to_string(*size) : "stream"));
}

} // namespace localcloud
