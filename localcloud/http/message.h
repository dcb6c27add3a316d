// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/file.h"
#include "localcloud/base/unixtime.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace localcloud {

/// Header fields in their order; names are compared without regard to case.
class Headers
{
public:
    using Field = std::pair<std::string, std::string>;

    Headers() = default;
    Headers(std::initializer_list<Field> fields)
        : m_fields(fields)
    {
    }

    /// The value of the first field of this name; empty when there is none.
    std::string_view find(std::string_view name) const;
    bool has(std::string_view name) const;
    /// Adds the field behind the others.
    void add(std::string name, std::string value);
    /// Sets the field, in place of one of the same name.
    void set(std::string name, std::string value);

    auto begin() const { return m_fields.begin(); }
    auto end() const { return m_fields.end(); }

private:
    std::vector<Field> m_fields;
};

/// A time as header fields have it (RFC 9110, section 5.6.7).
std::string httpDate(UnixMs time);

/// What a request asks for: a path and a query (RFC 3986).
struct Target
{
    std::string path;                  ///< as it was sent, with its percent signs
    std::vector<std::string> segments; ///< the path's parts, each decoded after the path was split
    std::vector<std::pair<std::string, std::string>> query; ///< names and values, decoded

    /// Reads a request's target. Nothing unless it is a path with an optional query, percent-encoded well.
    static std::optional<Target> parse(std::string_view text);

    bool has(std::string_view name) const;
    /// First value of a query's name; empty when there is none.
    std::string value(std::string_view name) const;
    /// The segment at `index`; empty when there are fewer.
    std::string segment(std::size_t index) const;
};

/// A request without its body.
struct RequestHead
{
    std::string method;
    std::string rawTarget;
    Target target;
    Headers headers;
    bool credentialsExpired = false; ///< whatever it was sent with no longer counts: a fault that a test set

    /// Scheme, name and port under which the client knows this server, also behind a proxy that ends TLS.
    std::string base() const;
    /// The token of its "Authorization: Bearer" field, else its parameter access_token; empty without.
    std::string bearer() const;
};

/// Part of a file as the body of an answer.
struct FileSlice
{
    File file;
    std::int64_t offset;
    std::int64_t length;
};

/// Where the events of one stream go: the open connection.
class EventSink
{
public:
    virtual ~EventSink() = default;

    /// Sends the text of an event, after those before. Never fails: a reader that lags too far is cut off.
    virtual void send(std::shared_ptr<const std::string> event) = 0;
    /// Ends the stream after what was sent.
    virtual void end() = 0;
    /// Sends nothing more and stays open: a fault that a test asked for.
    virtual void mute() = 0;
};

/// Something that ends when it is destroyed.
class Subscription
{
public:
    virtual ~Subscription() = default;
};

/// A body that goes on until one side ends it: begins sending events to the sink, which outlives the result.
using EventStream = std::function<std::unique_ptr<Subscription>(EventSink&)>;

/// An answer, without the fields that speak of the connection and of the length.
struct Answer
{
    int status = 200;
    Headers headers;
    std::variant<std::string, FileSlice, EventStream> body;
    bool headOnly = false; ///< of a HEAD request: the length is told, the body is not sent

    /// Bytes of the body; nothing for a stream.
    std::optional<std::int64_t> length() const;
    /// The status line and all fields, with the empty line behind them. `lengthError` is added to the length
    /// that is told: a fault that a test asked for.
    std::string head(bool keepAlive, std::int64_t lengthError = 0) const;
};

/// A JSON text as an answer.
Answer jsonAnswer(int status, std::string text);

/// Thrown where a request cannot be carried out; what the client is told instead.
struct Refusal
{
    Answer answer;
};

/// The reason phrase of a status (RFC 9110).
std::string_view reasonOf(int status);

} // namespace localcloud
