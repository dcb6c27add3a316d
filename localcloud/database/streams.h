// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/unixtime.h"
#include "localcloud/database/event.h"
#include "localcloud/http/message.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace localcloud {

/// The open event streams, and what each of them is to be told.
class Streams
{
public:
    /// Opens a stream at a place, until the result goes. It begins with `value`, all that is there now; when
    /// `ends` comes, its credential is no longer valid.
    std::unique_ptr<Subscription> open(const std::string& location, const Json& value,
                                       std::optional<UnixMs> ends, EventSink& sink, UnixMs now);

    /// Tells the streams that it is about of a change.
    void publish(const Change& change) const;
    /// Sends the signs of life that are due, and ends the streams whose credential has expired.
    void tick(UnixMs now);
    std::size_t count() const { return m_streams.size(); }

    /// Ends those streams whose credential can expire as if it had.
    void revokeTokens();
    /// Ends all: with the event of this name, or without one when it is empty.
    void endAll(const std::string& event);
    /// Lets all fall silent, and stay open.
    void muteAll();

private:
    struct Stream;
    class Registration;
    using ByLocation = std::multimap<std::string, Stream*>;

    void publishTo(ByLocation::const_iterator from, ByLocation::const_iterator to,
                   const Change& change) const;
    static void end(Stream& stream, const std::string& event);

    ByLocation m_streams;
};

} // namespace localcloud
