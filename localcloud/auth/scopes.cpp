// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/auth/scopes.h"

#include <algorithm>
#include <iterator>

namespace localcloud {

namespace {

constexpr std::string_view prefix = "https://www.googleapis.com/auth/";

struct Known
{
    std::string_view name;
    unsigned scopes;
};

constexpr Known knownScopes[] = {
    {"devstorage.read_only", ReadStorage},
    {"devstorage.read_write", ReadStorage | WriteStorage},
    {"devstorage.full_control", ReadStorage | WriteStorage},
    {"cloud-platform", ReadStorage | WriteStorage},
    {"cloud-platform.read-only", ReadStorage},
    {"firebase.database", UseDatabase},
    {"userinfo.email", NoScope},
};

const Known* find(std::string_view scope)
{
    if (scope.substr(0, prefix.size()) != prefix)
        return nullptr;
    const auto known = std::find_if(std::begin(knownScopes), std::end(knownScopes), [&](const Known& each) {
        return each.name == scope.substr(prefix.size());
    });
    return known == std::end(knownScopes) ? nullptr : known;
}

} // namespace

std::optional<unsigned> parseScopes(std::string_view list)
{
    unsigned result = NoScope;
    bool any = false;
    while (!list.empty()) {
        const std::string_view scope = list.substr(0, list.find(' '));
        list.remove_prefix(std::min(scope.size() + 1, list.size()));
        if (scope.empty())
            continue;
        const Known* known = find(scope);
        if (!known)
            return {};
        result |= known->scopes;
        any = true;
    }
    return any ? std::optional(result) : std::nullopt;
}

} // namespace localcloud
