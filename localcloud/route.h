// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/message.h"

#include <string>

namespace localcloud {

/// Which of the services a request is for. One address serves them all, told apart by their paths.
enum class Service { Control, Token, Identity, Storage, Upload, Database, Direct };

struct Route
{
    Service service;
    std::string kind; ///< under which requests are counted, such as "list", "media" or "stream"
};

Route routeOf(const RequestHead& head);

} // namespace localcloud
