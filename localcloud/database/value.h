// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/json.h"
#include "localcloud/base/unixtime.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace localcloud {

/// Data that the database does not take. Its text says why.
struct DataFault : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// A client's JSON as it is kept: arrays become objects with the indices as keys, null and empty members go,
/// and
/// {".sv":"timestamp"} becomes the time. `depth` is that of the place that it is for. Throws a DataFault.
Json normalized(const Json& value, std::size_t depth, UnixMs now);

/// A kept value as clients see it: an object whose keys are mostly the indices of an array becomes one.
Json presented(const Json& value);

/// The same for each member of an object, which stays one.
Json presentedMembers(const Json& object);

/// The part of a kept value at a relative place ("/key/key", or empty for all of it); null when there is
/// none.
Json partOf(const Json& value, std::string_view location);

/// A place and the text, number or boolean there.
using Leaf = std::pair<std::string, Json>;

/// The leaves of a kept value that is at `location`; none for null.
std::vector<Leaf> leavesOf(const Json& value, const std::string& location);

/// Puts a leaf into a kept value that is being put together; `location` is relative to the value.
void addLeaf(Json& value, std::string_view location, Json leaf);

} // namespace localcloud
