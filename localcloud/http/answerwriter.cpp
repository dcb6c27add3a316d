// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/http/answerwriter.h"

#include "localcloud/base/logging.h"
#include "localcloud/limits.h"

#include <boost/asio/post.hpp>
#include <boost/asio/write.hpp>

#include <algorithm>
#include <array>
#include <cerrno>

#include <sys/sendfile.h>

namespace localcloud {

using boost::system::error_code;

AnswerWriter::AnswerWriter(boost::asio::ip::tcp::socket& socket, Deadline& deadline)
    : m_socket(socket)
    , m_deadline(deadline)
    , m_pause(socket.get_executor())
{
}

void AnswerWriter::send(Answer answer, bool keepAlive, const Conduct& conduct, Done done)
{
    m_answer = std::move(answer);
    m_head = m_answer.head(keepAlive, conduct.lengthError);
    m_sent = 0;
    m_keepAlive = keepAlive && conduct.lengthError == 0;
    m_conduct = conduct;
    m_done = std::move(done);
    m_deadline.in(limits::send);
    if (m_answer.headOnly)
        m_answer.body = std::string();
    if (!m_conduct.sendsPlainly())
        sendHead(&AnswerWriter::sendPiece);
    else if (std::holds_alternative<FileSlice>(m_answer.body))
        sendHead(&AnswerWriter::sendFile);
    else
        sendText();
}

void AnswerWriter::sendText()
{
    const std::array<boost::asio::const_buffer, 2> buffers = {
        boost::asio::buffer(m_head), boost::asio::buffer(std::get<std::string>(m_answer.body))};
    boost::asio::async_write(m_socket, buffers,
                             [this](error_code error, std::size_t) { finish(!error && m_keepAlive); });
}

void AnswerWriter::sendHead(void (AnswerWriter::*next)())
{
    boost::asio::async_write(m_socket, boost::asio::buffer(m_head),
                             [this, next](error_code error, std::size_t) {
                                 if (error)
                                     finish(false);
                                 else
                                     (this->*next)();
                             });
}

void AnswerWriter::sendFile()
{
    const FileSlice& slice = std::get<FileSlice>(m_answer.body);
    const std::int64_t left = slice.length - m_sent;
    if (left == 0)
        return finish(m_keepAlive);
    off_t offset = slice.offset + m_sent;
    const auto size = static_cast<std::size_t>(std::min<std::int64_t>(left, limits::sendBytes));
    const ssize_t n = ::sendfile(m_socket.native_handle(), slice.file.descriptor(), &offset, size);
    if (n > 0) {
        m_sent += n;
        m_deadline.in(limits::send);
        boost::asio::post(m_socket.get_executor(), [this] { sendFile(); }); // others have their turn
    } else if (n < 0 && (errno == EAGAIN || errno == EINTR)) {
        m_socket.async_wait(boost::asio::socket_base::wait_write, [this](error_code error) {
            if (error)
                finish(false);
            else
                sendFile();
        });
    } else {
        finish(false);
    }
}

// The slow way, for faults: piece by piece, each checked against the conduct.
void AnswerWriter::sendPiece()
{
    if (m_conduct.cutAfter && m_sent >= *m_conduct.cutAfter)
        return finish(false);
    if (m_conduct.stallAfter && m_sent >= *m_conduct.stallAfter)
        return stall();
    if (m_sent == m_answer.length())
        return finish(m_keepAlive);
    try {
        m_piece = piece(pieceSize());
    } catch (const std::exception& exception) {
        logLine(exception.what());
        m_piece.clear();
    }
    if (m_piece.empty())
        return finish(false);
    m_deadline.in(limits::send);
    boost::asio::async_write(
        m_socket, boost::asio::buffer(m_piece), [this](error_code error, std::size_t size) {
            if (error)
                return finish(false);
            m_sent += static_cast<std::int64_t>(size);
            const std::int64_t rate = m_conduct.bytesPerSecond;
            m_pause.expires_after(
                std::chrono::microseconds(rate > 0 ? static_cast<std::int64_t>(size) * 1'000'000 / rate : 0));
            m_pause.async_wait([this](error_code) { sendPiece(); });
        });
}

void AnswerWriter::stall()
{
    m_deadline.in(limits::stall);
    m_socket.async_wait(boost::asio::socket_base::wait_read, [this](error_code) { finish(false); });
}

std::int64_t AnswerWriter::pieceSize() const
{
    std::int64_t size = m_answer.length().value_or(0) - m_sent;
    for (const auto& bound : {m_conduct.cutAfter, m_conduct.stallAfter}) {
        if (bound)
            size = std::min(size, *bound - m_sent);
    }
    if (m_conduct.bytesPerSecond > 0)
        size = std::min(size, std::max<std::int64_t>(m_conduct.bytesPerSecond / 20, 1));
    return std::min<std::int64_t>(size, limits::pieceBytes);
}

std::string AnswerWriter::piece(std::int64_t size)
{
    std::string bytes;
    if (const auto* slice = std::get_if<FileSlice>(&m_answer.body))
        bytes = slice->file.read(slice->offset + m_sent, static_cast<std::size_t>(size));
    else
        bytes = std::get<std::string>(m_answer.body)
                    .substr(static_cast<std::size_t>(m_sent), static_cast<std::size_t>(size));
    const auto end = m_sent + static_cast<std::int64_t>(bytes.size());
    if (m_conduct.corruptAt && *m_conduct.corruptAt >= m_sent && *m_conduct.corruptAt < end)
        bytes[static_cast<std::size_t>(*m_conduct.corruptAt - m_sent)] ^= 1;
    return bytes;
}

void AnswerWriter::finish(bool reusable)
{
    m_answer = {};
    const Done done = std::exchange(m_done, nullptr);
    done(reusable);
}

} // namespace localcloud
