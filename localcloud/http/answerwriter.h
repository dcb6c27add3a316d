// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/conduct.h"
#include "localcloud/http/deadline.h"
#include "localcloud/http/message.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>

namespace localcloud {

/// Sends one answer after the other on a connection, a file straight from the kernel.
class AnswerWriter
{
public:
    /// Called at the end, with whether the connection can carry another request. Holds the connection, and so
    /// this object, until then.
    using Done = std::function<void(bool reusable)>;

    AnswerWriter(boost::asio::ip::tcp::socket& socket, Deadline& deadline);

    /// Sends an answer that is no stream, as `conduct` has it. The last one must be done.
    void send(Answer answer, bool keepAlive, const Conduct& conduct, Done done);

private:
    void sendText();
    void sendHead(void (AnswerWriter::*next)());
    void sendFile();
    void sendPiece();
    void stall();
    std::int64_t pieceSize() const;
    std::string piece(std::int64_t size);
    void finish(bool reusable);

    boost::asio::ip::tcp::socket& m_socket;
    Deadline& m_deadline;
    boost::asio::steady_timer m_pause;
    Answer m_answer;
    std::string m_head;
    std::string m_piece;
    std::int64_t m_sent = 0; // of the body
    bool m_keepAlive = false;
    Conduct m_conduct;
    Done m_done;
};

} // namespace localcloud
