// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/http/byterange.h"

#include "localcloud/base/encoding.h"

#include <algorithm>

namespace localcloud {

namespace {

constexpr std::string_view unit = "bytes";

// Takes `text` off the front of `rest`. False when it does not begin with it.
bool skip(std::string_view& rest, std::string_view text)
{
    if (rest.substr(0, text.size()) != text)
        return false;
    rest.remove_prefix(text.size());
    return true;
}

// A number, or nothing for "*". False for anything else.
bool readBound(std::string_view text, std::optional<std::int64_t>& bound)
{
    bound = parseNumber(text);
    return bound || text == "*";
}

} // namespace

RangeRequest RangeRequest::parse(std::string_view field, std::int64_t size)
{
    const std::size_t dash = field.find('-');
    if (!skip(field, unit) || !skip(field, "=") || dash == std::string_view::npos)
        return {};
    const std::string_view before = field.substr(0, field.find('-'));
    const std::string_view after = field.substr(before.size() + 1);
    const auto first = parseNumber(before);
    const auto last = parseNumber(after);
    if ((!first && !before.empty()) || (!last && !after.empty()) || (!first && !last) ||
        (first && last && *last < *first))
        return {};
    const ByteRange range = first
                                ? ByteRange{*first, last ? std::min<std::int64_t>(*last, size - 1) : size - 1}
                                : ByteRange{std::max<std::int64_t>(size - *last, 0), size - 1};
    return {range.first > range.last ? Kind::Unsatisfiable : Kind::Part, range};
}

std::optional<UploadRange> UploadRange::parse(std::string_view field)
{
    UploadRange range;
    const std::size_t slash = field.find('/');
    if (slash == std::string_view::npos || !readBound(field.substr(slash + 1), range.total))
        return {};
    std::string_view bytes = field.substr(0, slash);
    if (!skip(bytes, unit) || !skip(bytes, " "))
        return {};
    if (bytes == "*")
        return range;
    const std::size_t dash = bytes.find('-');
    range.first = parseNumber(bytes.substr(0, dash));
    if (dash == std::string_view::npos || !range.first || !readBound(bytes.substr(dash + 1), range.last))
        return {};
    const bool ordered = (!range.last || *range.last >= *range.first) &&
                         (!range.last || !range.total || *range.last < *range.total);
    return ordered ? std::optional(range) : std::nullopt;
}

} // namespace localcloud
