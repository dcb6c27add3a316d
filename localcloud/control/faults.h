// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/json.h"
#include "localcloud/http/conduct.h"
#include "localcloud/http/message.h"

#include <optional>
#include <string>
#include <vector>

namespace localcloud {

/// What is to go wrong with some requests. docs/localcloud.md tables the members of its JSON form.
struct Fault
{
    std::string method;  ///< empty: any
    std::string target;  ///< pattern of the shell's kind for path and query as they are sent
    long long skip = 0;  ///< matching requests that are left alone before
    long long times = 1; ///< matching requests that it happens to
    bool credentialsExpired = false;
    std::optional<int> status; ///< of an answer that is given instead of carrying the request out
    std::string body;          ///< of that answer
    Headers headers;           ///< set on whichever answer it is
    Conduct conduct;

    bool matches(const std::string& itsMethod, const std::string& itsTarget) const;
};

/// Thrown for JSON that describes no faults. Its text says why.
struct FaultsFault : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// Reads a list of faults. Throws a FaultsFault that names the member at fault.
std::vector<Fault> parseFaults(const std::string& json);

/// The faults that are still to happen.
class Faults
{
public:
    /// Replaces all.
    void set(std::vector<Fault> faults) { m_faults = std::move(faults); }
    /// The first fault that matches a request, used up by one.
    std::optional<Fault> take(const std::string& method, const std::string& target);
    /// How often faults are still to happen.
    long long left() const;

private:
    std::vector<Fault> m_faults;
};

} // namespace localcloud
