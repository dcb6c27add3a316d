// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace localcloud {

/// Reads a body of two parts, an object's metadata and its content (multipart/related, RFC 2387), as it
/// arrives. Only the metadata is kept.
class MultipartReader
{
public:
    using Sink = std::function<void(std::string_view)>;

    /// What is no such body. Its text says why.
    struct Fault : std::runtime_error
    {
        using std::runtime_error::runtime_error;
    };

    /// Content goes to `content`.
    MultipartReader(const std::string& boundary, Sink content);

    /// The boundary that a Content-Type field names; empty when the field is not that of multipart/related.
    static std::string boundaryOf(std::string_view contentType);

    /// Reads on. Throws a Fault, and what the sink throws.
    void take(std::string_view piece);
    /// Whether both parts have arrived.
    bool isComplete() const { return m_state == State::End; }

    const std::string& metadata() const { return m_metadata; }
    /// Content-Type of the content's part; empty when it has none.
    const std::string& contentType() const { return m_contentType; }

private:
    enum class State { Preamble, BehindDelimiter, PartHead, PartBody, End };

    bool advance();
    bool readToDelimiter(bool keep);
    bool readBehindDelimiter();
    bool readPartHead();
    void give(std::string_view bytes);

    std::string m_delimiter;
    Sink m_content;
    State m_state = State::Preamble;
    int m_part = -1;       // 0: metadata, 1: content
    std::string m_pending; // read, not yet understood
    std::string m_metadata;
    std::string m_contentType;
};

} // namespace localcloud
