// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace localcloud {

/// Bytes of a body, first and last included.
struct ByteRange
{
    std::int64_t first;
    std::int64_t last;

    std::int64_t length() const { return last - first + 1; }
};

/// What the Range field of a request means for a body of a given size.
struct RangeRequest
{
    enum class Kind {
        Whole,         ///< no range, or one that is to be ignored
        Part,          ///< `range` is asked for
        Unsatisfiable, ///< it begins behind the end
    };
    Kind kind = Kind::Whole;
    ByteRange range{};

    /// Reads the field (RFC 9110, section 14.2); several ranges in one count as none.
    static RangeRequest parse(std::string_view field, std::int64_t size);
};

/// The Content-Range field of a request to a resumable upload: "bytes FIRST-LAST/TOTAL", where LAST and TOTAL
/// may be "*", or "bytes */TOTAL", which asks how much has arrived.
struct UploadRange
{
    std::optional<std::int64_t> first; ///< nothing: the request brings no bytes
    std::optional<std::int64_t> last;  ///< nothing: up to the body's end
    std::optional<std::int64_t> total; ///< size of the whole object

    /// Nothing when the field is none of these forms.
    static std::optional<UploadRange> parse(std::string_view field);
};

} // namespace localcloud
