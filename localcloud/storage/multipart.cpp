// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/multipart.h"

#include "localcloud/http/message.h"
#include "localcloud/limits.h"

#include <algorithm>

namespace localcloud {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::size_t boundaryBytes = 70; // RFC 2046

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? ""
                                           : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

Headers readFields(std::string_view text)
{
    Headers fields;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find(lineEnd));
        text.remove_prefix(std::min(line.size() + lineEnd.size(), text.size()));
        const std::size_t colon = line.find(':');
        if (colon != std::string_view::npos)
            fields.set(std::string(line.substr(0, colon)), std::string(trimmed(line.substr(colon + 1))));
    }
    return fields;
}

} // namespace

// The first delimiter has no line end before it when nothing precedes it: one is made up.
MultipartReader::MultipartReader(const std::string& boundary, Sink content)
    : m_delimiter("\r\n--" + boundary)
    , m_content(std::move(content))
    , m_pending(lineEnd)
{
}

std::string MultipartReader::boundaryOf(std::string_view contentType)
{
    constexpr std::string_view name = "boundary=";
    const std::size_t start = contentType.find(name);
    if (contentType.substr(0, 17) != "multipart/related" || start == std::string_view::npos)
        return {};
    std::string_view value = contentType.substr(start + name.size());
    value = value.substr(0, value.find(value.front() == '"' ? '"' : ';', 1));
    if (!value.empty() && value.front() == '"')
        value.remove_prefix(1);
    value = trimmed(value);
    return value.size() <= boundaryBytes ? std::string(value) : std::string();
}

void MultipartReader::take(std::string_view piece)
{
    m_pending.append(piece);
    while (advance()) {
    }
}

// One step. False when it needs more bytes.
bool MultipartReader::advance()
{
    switch (m_state) {
    case State::Preamble:
        return readToDelimiter(false);
    case State::BehindDelimiter:
        return readBehindDelimiter();
    case State::PartHead:
        return readPartHead();
    case State::PartBody:
        return readToDelimiter(true);
    case State::End:
        m_pending.clear();
        break;
    }
    return false;
}

// What could be the beginning of a delimiter stays pending.
bool MultipartReader::readToDelimiter(bool keep)
{
    const std::size_t found = m_pending.find(m_delimiter);
    const std::size_t size = found != std::string::npos
                                 ? found
                                 : m_pending.size() - std::min(m_pending.size(), m_delimiter.size() - 1);
    if (keep)
        give(std::string_view(m_pending).substr(0, size));
    m_pending.erase(0, found != std::string::npos ? size + m_delimiter.size() : size);
    if (found == std::string::npos)
        return false;
    m_state = State::BehindDelimiter;
    return true;
}

bool MultipartReader::readBehindDelimiter()
{
    if (m_pending.size() < 2)
        return false;
    if (m_pending.compare(0, 2, "--") == 0) {
        if (m_part < 1)
            throw Fault("The body ends before its second part.");
        m_state = State::End;
    } else {
        if (++m_part > 1)
            throw Fault("The body has more than two parts.");
        m_state = State::PartHead; // the line end stays: it may end an empty head as well
    }
    return true;
}

bool MultipartReader::readPartHead()
{
    const std::size_t end = m_pending.find("\r\n\r\n");
    if (std::min(end, m_pending.size()) > limits::headBytes)
        throw Fault("A part's head is too large.");
    if (end == std::string::npos)
        return false;
    const Headers fields = readFields(std::string_view(m_pending).substr(0, end));
    m_contentType = fields.find("Content-Type"); // the last part's stays
    m_pending.erase(0, end + 4);
    m_state = State::PartBody;
    return true;
}

void MultipartReader::give(std::string_view bytes)
{
    if (m_part == 1)
        return m_content(bytes);
    if (m_metadata.size() + bytes.size() > limits::metadataBytes)
        throw Fault("The metadata is too large.");
    m_metadata.append(bytes);
}

} // namespace localcloud
