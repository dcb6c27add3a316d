// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/message.h"
#include "localcloud/storage/objectstore.h"

namespace localcloud {

/// What an upload asks for: its query, the object's resource from the body (empty when there is none), and
/// the Content-Type told beside the content. Throws a Refusal.
NewObject newObject(const RequestHead& head, const std::string& resource, const std::string& contentType);

} // namespace localcloud
