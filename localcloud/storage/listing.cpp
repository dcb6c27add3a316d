// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/listing.h"

#include "localcloud/base/encoding.h"
#include "localcloud/http/serviceerror.h"

#include <algorithm>

namespace localcloud {

namespace {

int readMaxResults(const Target& target)
{
    if (!target.has("maxResults"))
        return limits::listResults;
    const std::optional<long long> number = parseNumber(target.value("maxResults"));
    if (!number)
        refuse(400, "invalid", "Invalid value for maxResults.");
    return *number == 0 ? limits::listResults
                        : static_cast<int>(std::min<long long>(*number, limits::listResults));
}

} // namespace

ListQuery ListQuery::parse(const Target& target)
{
    ListQuery query{target.value("prefix"), target.value("delimiter"), target.value("startOffset"),
                    target.value("endOffset"), readMaxResults(target)};
    const std::optional<std::string> token = base64Decode(target.value("pageToken"));
    if (!token)
        refuse(400, "invalid", "Invalid value for pageToken.");
    query.start = std::max({query.start, query.prefix, *token});
    return query;
}

std::string ListPage::json(const BucketPlace& place) const
{
    Json page = {{"kind", "storage#objects"}};
    for (const Object& object : objects)
        page["items"].push_back(objectResource(object, place));
    if (!prefixes.empty())
        page["prefixes"] = prefixes;
    if (!next.empty())
        page["nextPageToken"] = base64UrlEncode(next);
    return page.dump();
}

std::string behindPrefix(std::string prefix)
{
    return std::move(prefix) + '\xff';
}

} // namespace localcloud
