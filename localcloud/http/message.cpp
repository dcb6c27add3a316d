// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/http/message.h"

#include "localcloud/base/encoding.h"

#include <algorithm>
#include <ctime>

#include <strings.h>

namespace localcloud {

namespace {

bool sameName(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && ::strncasecmp(a.data(), b.data(), a.size()) == 0;
}

// The text up to `separator`, which is taken off the rest with it.
std::string_view cutPart(std::string_view& rest, char separator)
{
    const std::size_t end = std::min(rest.find(separator), rest.size());
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return part;
}

bool readQuery(std::string_view text, Target& target)
{
    while (!text.empty()) {
        std::string_view pair = cutPart(text, '&');
        const auto name = percentDecode(cutPart(pair, '='), Plus::Blank);
        const auto value = percentDecode(pair, Plus::Blank);
        if (!name || !value)
            return false;
        if (!name->empty())
            target.query.emplace_back(*name, *value);
    }
    return true;
}

bool readPath(std::string_view path, Target& target)
{
    target.path = path;
    path.remove_prefix(1);
    for (bool more = true; more;) {
        more = path.find('/') != std::string_view::npos;
        const auto segment = percentDecode(cutPart(path, '/'));
        if (!segment)
            return false;
        target.segments.push_back(*segment);
    }
    return true;
}

} // namespace

std::string_view Headers::find(std::string_view name) const
{
    for (const Field& field : m_fields) {
        if (sameName(field.first, name))
            return field.second;
    }
    return {};
}

bool Headers::has(std::string_view name) const
{
    return std::any_of(begin(), end(), [name](const Field& field) { return sameName(field.first, name); });
}

void Headers::add(std::string name, std::string value)
{
    m_fields.emplace_back(std::move(name), std::move(value));
}

void Headers::set(std::string name, std::string value)
{
    for (Field& field : m_fields) {
        if (sameName(field.first, name)) {
            field.second = std::move(value);
            return;
        }
    }
    add(std::move(name), std::move(value));
}

std::optional<Target> Target::parse(std::string_view text)
{
    Target result;
    const std::string_view path = cutPart(text, '?');
    if (path.empty() || path.front() != '/' || !readPath(path, result) || !readQuery(text, result))
        return {};
    return result;
}

bool Target::has(std::string_view name) const
{
    return std::any_of(query.begin(), query.end(), [name](const auto& entry) { return entry.first == name; });
}

std::string Target::value(std::string_view name) const
{
    for (const auto& [key, value] : query) {
        if (key == name)
            return value;
    }
    return {};
}

std::string Target::segment(std::size_t index) const
{
    return index < segments.size() ? segments[index] : std::string();
}

std::string RequestHead::base() const
{
    const std::string_view forwarded = headers.find("X-Forwarded-Proto");
    return std::string(forwarded == "https" ? "https://" : "http://").append(headers.find("Host"));
}

std::string RequestHead::bearer() const
{
    constexpr std::string_view scheme = "Bearer ";
    const std::string_view field = headers.find("Authorization");
    if (field.size() > scheme.size() && sameName(field.substr(0, scheme.size()), scheme))
        return std::string(field.substr(scheme.size()));
    return target.value("access_token");
}

std::optional<std::int64_t> Answer::length() const
{
    if (const auto* text = std::get_if<std::string>(&body))
        return static_cast<std::int64_t>(text->size());
    if (const auto* slice = std::get_if<FileSlice>(&body))
        return slice->length;
    return {};
}

std::string httpDate(UnixMs time)
{
    const std::time_t seconds = time / 1000;
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%a, %d %b %Y %H:%M:%S GMT", &parts);
    return text;
}

std::string Answer::head(bool keepAlive, std::int64_t lengthError) const
{
    std::string text = "HTTP/1.1 " + std::to_string(status) + " ";
    text.append(reasonOf(status)).append("\r\n");
    if (!headers.has("Date"))
        text.append("Date: ").append(httpDate(unixNow())).append("\r\n");
    for (const auto& [name, value] : headers)
        text.append(name).append(": ").append(value).append("\r\n");
    const std::optional<std::int64_t> bytes = length();
    if (bytes && status != 204 && status != 304)
        text.append("Content-Length: ").append(std::to_string(*bytes + lengthError)).append("\r\n");
    text.append(keepAlive ? "Connection: keep-alive\r\n\r\n" : "Connection: close\r\n\r\n");
    return text;
}

Answer jsonAnswer(int status, std::string text)
{
    return {status,
            {{"Content-Type", "application/json; charset=UTF-8"}, {"Cache-Control", "no-cache"}},
            std::move(text)};
}

std::string_view reasonOf(int status)
{
    static constexpr std::pair<int, std::string_view> reasons[] = {
        {200, "OK"},
        {204, "No Content"},
        {206, "Partial Content"},
        {304, "Not Modified"},
        {307, "Temporary Redirect"},
        {308, "Resume Incomplete"}, // the storage service's own meaning
        {400, "Bad Request"},
        {401, "Unauthorized"},
        {403, "Forbidden"},
        {404, "Not Found"},
        {405, "Method Not Allowed"},
        {409, "Conflict"},
        {412, "Precondition Failed"},
        {413, "Payload Too Large"},
        {416, "Requested Range Not Satisfiable"},
        {431, "Request Header Fields Too Large"},
        {499, "Client Closed Request"},
        {500, "Internal Server Error"},
        {503, "Service Unavailable"},
    };
    for (const auto& [number, reason] : reasons) {
        if (number == status)
            return reason;
    }
    return status < 400 ? "Other" : "Error";
}

} // namespace localcloud
