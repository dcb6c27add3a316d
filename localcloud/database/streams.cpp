// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/database/streams.h"

#include "localcloud/database/location.h"
#include "localcloud/limits.h"

namespace localcloud {

struct Streams::Stream
{
    EventSink& sink;
    std::optional<UnixMs> ends;
    UnixMs nextKeepAlive;
    bool ended = false;
};

class Streams::Registration : public Subscription
{
public:
    Registration(ByLocation& streams, const std::string& location, Stream stream)
        : m_streams(streams)
        , m_stream(stream)
        , m_entry(streams.emplace(location, &m_stream))
    {
    }
    ~Registration() override { m_streams.erase(m_entry); }
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;

private:
    ByLocation& m_streams;
    Stream m_stream;
    ByLocation::iterator m_entry;
};

namespace {

const UnixMs keepAlive = std::chrono::milliseconds(limits::keepAlive).count();

std::shared_ptr<const std::string> shared(std::string text)
{
    return std::make_shared<const std::string>(std::move(text));
}

} // namespace

std::unique_ptr<Subscription> Streams::open(const std::string& location, const Json& value,
                                            std::optional<UnixMs> ends, EventSink& sink, UnixMs now)
{
    sink.send(shared(firstEvent(value)));
    return std::make_unique<Registration>(m_streams, location, Stream{sink, ends, now + keepAlive});
}

void Streams::publish(const Change& change) const
{
    for (std::size_t end = 0; end != std::string::npos;) { // at the change's place and above it
        const bool whole = end == change.location.size();
        const auto [from, to] = m_streams.equal_range(change.location.substr(0, end));
        publishTo(from, to, change);
        end =
            whole ? std::string::npos : std::min(change.location.find('/', end + 1), change.location.size());
    }
    publishTo(m_streams.lower_bound(firstBelow(change.location)),
              m_streams.lower_bound(behindBelow(change.location)), change);
}

void Streams::publishTo(ByLocation::const_iterator from, ByLocation::const_iterator to,
                        const Change& change) const
{
    const std::string* location = nullptr;
    std::shared_ptr<const std::string> events; // shared by all streams at one place
    for (; from != to; ++from) {
        if (!location || *location != from->first)
            events = shared(eventsOf(change, from->first));
        location = &from->first;
        if (!events->empty())
            from->second->sink.send(events);
    }
}

void Streams::tick(UnixMs now)
{
    const auto sign = shared(plainEvent("keep-alive"));
    for (const auto& [location, stream] : m_streams) {
        if (stream->ends && *stream->ends <= now)
            end(*stream, "auth_revoked");
        else if (stream->nextKeepAlive <= now) {
            stream->nextKeepAlive = now + keepAlive;
            stream->sink.send(sign);
        }
    }
}

void Streams::revokeTokens()
{
    for (const auto& [location, stream] : m_streams) {
        if (stream->ends)
            end(*stream, "auth_revoked");
    }
}

void Streams::endAll(const std::string& event)
{
    for (const auto& [location, stream] : m_streams)
        end(*stream, event);
}

void Streams::muteAll()
{
    for (const auto& [location, stream] : m_streams)
        stream->sink.mute();
}

void Streams::end(Stream& stream, const std::string& event)
{
    if (std::exchange(stream.ended, true))
        return;
    if (!event.empty())
        stream.sink.send(shared(plainEvent(event)));
    stream.sink.end();
}

} // namespace localcloud
