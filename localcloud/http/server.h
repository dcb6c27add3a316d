// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/connection.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/signal_set.hpp>
#include <boost/asio/steady_timer.hpp>

#include <memory>
#include <vector>

namespace localcloud {

/// Listens on the loopback interface and holds the connections. One thread: that of run().
class Server
{
public:
    /// Listens on `port`, 0 for any free one. `log` gets a line for each request; may be empty. Throws
    /// std::system_error when the port is taken.
    Server(RequestHandler& handler, std::uint16_t port, Connection::Log log);

    std::uint16_t port() const;
    /// Serves until the process is asked to end (SIGINT, SIGTERM).
    void run();

private:
    void accept();
    void admit(boost::asio::ip::tcp::socket socket);
    void forgetEnded();
    void tick();
    void stop();

    RequestHandler& m_handler;
    Connection::Log m_log;
    boost::asio::io_context m_io{1};
    boost::asio::ip::tcp::acceptor m_acceptor{m_io};
    boost::asio::signal_set m_signals{m_io};
    boost::asio::steady_timer m_ticks{m_io};
    boost::asio::steady_timer m_acceptPause{m_io};
    std::vector<std::weak_ptr<Connection>> m_connections; // tick() takes the ended ones out
    bool m_stopping = false;
};

} // namespace localcloud
