// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/message.h"

#include <string>

namespace localcloud {

/// An error in the form of Google's JSON services: {"error":{"code","message","errors":[{"reason",..}]}}.
Answer serviceError(int status, const std::string& reason, const std::string& message);

/// Throws that answer as a Refusal.
[[noreturn]] void refuse(int status, const std::string& reason, const std::string& message);

} // namespace localcloud
