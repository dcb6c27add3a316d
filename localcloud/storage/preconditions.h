// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/message.h"
#include "localcloud/storage/object.h"

#include <optional>

namespace localcloud {

/// What must hold of an object for a request to be carried out: the parameters ifGenerationMatch and the
/// like.
struct Preconditions
{
    std::optional<std::int64_t> generation;    ///< 0: there is no such object
    std::optional<std::int64_t> notGeneration; ///< 0: there is one
    std::optional<std::int64_t> metageneration;
    std::optional<std::int64_t> notMetageneration;

    /// Reads them from a query; `prefix` is "if" or, for the source of a copy, "ifSource". Throws a Refusal
    /// for one that is no number.
    static Preconditions parse(const Target& target, const std::string& prefix = "if");

    /// Throws the Refusal that says which kind does not hold, 304 for the "not" conditions of a reading
    /// request. `object` is null when there is none.
    void checkForReading(const Object* object) const;
    /// The same for a writing request: always 412.
    void checkForWriting(const Object* object) const;

private:
    bool matches(const Object* object) const;
    bool differs(const Object* object) const;
};

} // namespace localcloud
