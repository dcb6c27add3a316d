// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/database/databaseaccess.h"
#include "localcloud/database/pushids.h"
#include "localcloud/database/streams.h"
#include "localcloud/database/treestore.h"
#include "localcloud/http/exchange.h"

#include <memory>
#include <string>

namespace localcloud {

/// The realtime database's REST interface and its event streams.
class DatabaseService
{
public:
    DatabaseService(TreeStore& tree, Streams& streams, const DatabaseAccess& access);

    /// Whether a request asks for a stream of events.
    static bool isStream(const RequestHead& head);
    /// Throws a Refusal.
    std::unique_ptr<Exchange> begin(const RequestHead& head);

private:
    Answer read(const RequestHead& head, const std::string& location);
    Answer stream(const std::string& location, std::optional<UnixMs> ends);
    Answer write(const RequestHead& head, const std::string& method, const std::string& location,
                 const std::string& body);
    Json put(const std::string& location, const Json& value);
    Json patch(const std::string& location, const Json& value);

    TreeStore& m_tree;
    Streams& m_streams;
    const DatabaseAccess& m_access;
    PushIds m_ids;
};

} // namespace localcloud
