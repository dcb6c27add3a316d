// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/exchange.h"

#include <boost/asio/buffer.hpp>
#include <boost/beast/core/error.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/optional.hpp>

#include <exception>
#include <limits>

namespace localcloud {

/// Beast's notion of a body: hands the pieces to the request's exchange as they are read, without a copy.
struct RequestBody
{
    struct value_type
    {
        Exchange* exchange = nullptr;
        std::int64_t quota = std::numeric_limits<std::int64_t>::max(); ///< bytes that may still be taken
        bool quotaReached = false;
        std::exception_ptr failure; ///< what the exchange threw
    };

    class reader
    {
    public:
        template <bool isRequest, class Fields>
        reader(boost::beast::http::header<isRequest, Fields>&, value_type& body)
            : m_body(body)
        {
        }

        void init(const boost::optional<std::uint64_t>&, boost::system::error_code& error) { error = {}; }

        template <class Buffers>
        std::size_t put(const Buffers& buffers, boost::system::error_code& error)
        {
            std::size_t taken = 0;
            error = {};
            for (auto it = boost::asio::buffer_sequence_begin(buffers);
                 it != boost::asio::buffer_sequence_end(buffers) && !error; ++it) {
                const boost::asio::const_buffer buffer = *it;
                if (!take({static_cast<const char*>(buffer.data()), buffer.size()}))
                    error = boost::asio::error::operation_aborted;
                taken += buffer.size();
            }
            return taken;
        }

        void finish(boost::system::error_code& error) { error = {}; }

    private:
        bool take(std::string_view piece)
        {
            const auto size = static_cast<std::int64_t>(piece.size());
            m_body.quotaReached = size >= m_body.quota;
            piece = piece.substr(0, static_cast<std::size_t>(std::min(size, m_body.quota)));
            m_body.quota -= static_cast<std::int64_t>(piece.size());
            try {
                m_body.exchange->take(piece);
            } catch (...) {
                m_body.failure = std::current_exception();
            }
            return !m_body.quotaReached && !m_body.failure;
        }

        value_type& m_body;
    };
};

} // namespace localcloud
