// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/http/eventwriter.h"

#include "localcloud/limits.h"

#include <boost/asio/write.hpp>

namespace localcloud {

using boost::system::error_code;

EventWriter::EventWriter(boost::asio::ip::tcp::socket& socket, Deadline& deadline, std::weak_ptr<void> owner,
                         const Conduct& conduct, std::string head)
    : m_socket(socket)
    , m_deadline(deadline)
    , m_owner(std::move(owner))
    , m_conduct(conduct)
{
    push(std::make_shared<const std::string>(std::move(head)));
}

void EventWriter::send(std::shared_ptr<const std::string> event)
{
    if (m_silent || m_ending)
        return;
    if (m_conduct.cutAfter || m_conduct.stallAfter) {
        std::string text = *event;
        if (!goOn(text))
            m_silent = true;
        event = std::make_shared<const std::string>(std::move(text));
    }
    push(std::move(event));
    if (m_silent && m_conduct.cutAfter)
        end();
}

// Shortens the text to what the conduct lets through. False when nothing may follow.
bool EventWriter::goOn(std::string& text)
{
    const std::int64_t bound = m_conduct.cutAfter ? *m_conduct.cutAfter : *m_conduct.stallAfter;
    const std::int64_t left = bound - m_accepted;
    m_accepted += static_cast<std::int64_t>(text.size());
    if (m_accepted < bound)
        return true;
    text.resize(static_cast<std::size_t>(left));
    return false;
}

void EventWriter::end()
{
    m_ending = true;
    if (m_queue.empty())
        close();
}

void EventWriter::push(std::shared_ptr<const std::string> text)
{
    if (m_queued > 0 && m_queued + text->size() > limits::streamQueueBytes)
        return close();
    m_queued += text->size();
    m_queue.push_back(std::move(text));
    if (m_queue.size() == 1)
        write();
}

void EventWriter::write()
{
    m_deadline.in(limits::send);
    boost::asio::async_write(m_socket, boost::asio::buffer(*m_queue.front()),
                             [this, owner = m_owner.lock()](error_code error, std::size_t) {
                                 if (error)
                                     return close();
                                 m_queued -= m_queue.front()->size();
                                 m_queue.pop_front();
                                 m_deadline.never();
                                 if (!m_queue.empty())
                                     write();
                                 else if (m_ending)
                                     close();
                             });
}

void EventWriter::close()
{
    error_code ignored;
    m_socket.shutdown(boost::asio::socket_base::shutdown_both, ignored);
    m_socket.close(ignored);
}

} // namespace localcloud
