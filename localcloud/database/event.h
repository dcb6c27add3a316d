// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/json.h"

#include <string>
#include <string_view>

namespace localcloud {

/// A change of the tree, as streams are told of it.
struct Change
{
    enum class Kind {
        Put,   ///< `value` is now what is at `location`
        Patch, ///< each member of `value`, its key a place below `location`, was put there
    };
    Kind kind;
    std::string location;
    Json value; ///< as it is kept
};

/// The event with which a stream begins: all that is at its place.
std::string firstEvent(const Json& value);

/// The events of a change for a stream at `location`; empty when the change is not about that place.
std::string eventsOf(const Change& change, const std::string& location);

/// The events without content: "keep-alive", "cancel", "auth_revoked".
std::string plainEvent(std::string_view name);

} // namespace localcloud
