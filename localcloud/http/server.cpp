// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/http/server.h"

#include "localcloud/base/logging.h"
#include "localcloud/limits.h"

#include <algorithm>

namespace localcloud {

using boost::asio::ip::tcp;
using boost::system::error_code;

Server::Server(RequestHandler& handler, std::uint16_t port, Connection::Log log)
    : m_handler(handler)
    , m_log(std::move(log))
{
    const tcp::endpoint endpoint(boost::asio::ip::address_v4::loopback(), port);
    m_acceptor.open(endpoint.protocol());
    m_acceptor.set_option(tcp::acceptor::reuse_address(true));
    m_acceptor.bind(endpoint);
    m_acceptor.listen(limits::backlog);
}

std::uint16_t Server::port() const
{
    return m_acceptor.local_endpoint().port();
}

void Server::run()
{
    m_signals.add(SIGINT);
    m_signals.add(SIGTERM);
    m_signals.async_wait([this](error_code, int) { stop(); });
    accept();
    tick();
    while (!m_io.stopped()) {
        try {
            m_io.run();
        } catch (const std::exception& exception) { // one connection's misfortune is not everybody's end
            logLine(exception.what());
        }
    }
}

void Server::accept()
{
    m_acceptor.async_accept([this](error_code error, tcp::socket socket) {
        if (m_stopping)
            return;
        if (!error) {
            admit(std::move(socket));
            return accept();
        }
        // Out of descriptors: at once again would spin.
        m_acceptPause.expires_after(limits::acceptPause);
        m_acceptPause.async_wait([this](error_code) {
            if (!m_stopping)
                accept();
        });
    });
}

void Server::admit(tcp::socket socket)
{
    if (m_connections.size() >= limits::connections) {
        forgetEnded();
        if (m_connections.size() >= limits::connections)
            return;
    }
    const auto connection = std::make_shared<Connection>(std::move(socket), m_handler, m_log);
    m_connections.push_back(connection);
    connection->start();
}

void Server::forgetEnded()
{
    const auto ended = [](const std::weak_ptr<Connection>& connection) { return connection.expired(); };
    m_connections.erase(std::remove_if(m_connections.begin(), m_connections.end(), ended),
                        m_connections.end());
}

void Server::tick()
{
    const auto now = Deadline::Clock::now();
    for (const std::weak_ptr<Connection>& each : m_connections) {
        if (const auto connection = each.lock())
            connection->closeIfLate(now);
    }
    forgetEnded();
    m_handler.tick();
    m_ticks.expires_after(std::chrono::seconds(1));
    m_ticks.async_wait([this](error_code error) {
        if (!error)
            tick();
    });
}

// Everything pending ends with an error; run() returns when nothing is left.
void Server::stop()
{
    m_stopping = true;
    error_code ignored;
    m_acceptor.close(ignored);
    m_ticks.cancel(ignored);
    m_acceptPause.cancel(ignored);
    for (const std::weak_ptr<Connection>& each : m_connections) {
        if (const auto connection = each.lock())
            connection->close();
    }
}

} // namespace localcloud
