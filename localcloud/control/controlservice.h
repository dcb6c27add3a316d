// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/auth/accesstokens.h"
#include "localcloud/control/counters.h"
#include "localcloud/control/faults.h"
#include "localcloud/database/streams.h"
#include "localcloud/http/exchange.h"

#include <memory>

namespace localcloud {

/// What tests ask of the server itself, below "/_localcloud": faults, counters, the end of streams and
/// tokens. docs/localcloud.md describes it.
class ControlService
{
public:
    ControlService(Faults& faults, Counters& counters, Streams& streams, AccessTokens& tokens);

    static bool serves(std::string_view path);
    /// Throws a Refusal.
    std::unique_ptr<Exchange> begin(const RequestHead& head);

private:
    Answer setFaults(const std::string& body);
    Answer showFaults() const;
    Answer showCounters() const;
    Answer endStreams(const std::string& how);
    Answer expireTokens();

    Faults& m_faults;
    Counters& m_counters;
    Streams& m_streams;
    AccessTokens& m_tokens;
};

} // namespace localcloud
