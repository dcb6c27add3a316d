// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/message.h"
#include "localcloud/storage/objectstore.h"

namespace localcloud {

/// The content of an object that was found just now, or the part of it that the request's Range field asks
/// for. Throws a Refusal when that is behind the end.
Answer mediaAnswer(const ObjectStore& objects, const Object& object, const RequestHead& head);

} // namespace localcloud
