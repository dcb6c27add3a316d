// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/message.h"
#include "localcloud/limits.h"
#include "localcloud/storage/object.h"

#include <string>
#include <vector>

namespace localcloud {

/// Which objects to list.
struct ListQuery
{
    std::string prefix;                   ///< of the names
    std::string delimiter;                ///< names with this behind the prefix are rolled up; empty: none is
    std::string start;                    ///< first name
    std::string end;                      ///< name behind the last; empty: no bound
    int maxResults = limits::listResults; ///< objects and prefixes together

    /// Reads a listing's parameters. Throws a Refusal.
    static ListQuery parse(const Target& target);
};

/// One page of a listing.
struct ListPage
{
    std::vector<Object> objects;       ///< in the order of the bytes of their names
    std::vector<std::string> prefixes; ///< up to and with the delimiter, in the same order
    std::string next;                  ///< where the next page starts; empty on the last

    /// The page as the service's JSON text.
    std::string json(const BucketPlace& place) const;
};

/// The first text behind every text that begins with `prefix`; no UTF-8 text is equal to it.
std::string behindPrefix(std::string prefix);

} // namespace localcloud
