// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/conduct.h"
#include "localcloud/http/deadline.h"
#include "localcloud/http/message.h"

#include <boost/asio/ip/tcp.hpp>

#include <deque>

namespace localcloud {

/// Sends the events of one stream on a connection. Closes it when the reader lags too far behind.
class EventWriter : public EventSink
{
public:
    /// Sends `head` first. `owner` holds the connection while something is on its way.
    EventWriter(boost::asio::ip::tcp::socket& socket, Deadline& deadline, std::weak_ptr<void> owner,
                const Conduct& conduct, std::string head);

    void send(std::shared_ptr<const std::string> event) override;
    void end() override;
    void mute() override { m_silent = true; }

private:
    void push(std::shared_ptr<const std::string> text);
    void write();
    void close();
    bool goOn(std::string& text);

    boost::asio::ip::tcp::socket& m_socket;
    Deadline& m_deadline;
    std::weak_ptr<void> m_owner;
    Conduct m_conduct;
    std::deque<std::shared_ptr<const std::string>> m_queue; // the first is being written
    std::size_t m_queued = 0;                               // bytes
    std::int64_t m_accepted = 0;                            // bytes of the body, for the conduct
    bool m_silent = false;
    bool m_ending = false;
};

} // namespace localcloud
