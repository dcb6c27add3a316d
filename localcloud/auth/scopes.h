// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

namespace localcloud {

/// What an access token lets its holder do; a set of these.
enum Scope : unsigned {
    NoScope = 0,
    ReadStorage = 1,
    WriteStorage = 2,
    UseDatabase = 4,
};

/// The set that a blank-separated list of OAuth scopes stands for. Nothing when the list is empty or has a
/// scope in it that this cloud does not know.
std::optional<unsigned> parseScopes(std::string_view list);

} // namespace localcloud
