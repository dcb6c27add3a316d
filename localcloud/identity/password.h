// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace localcloud {

/// A salted hash (scrypt, RFC 7914) of a password, with its parameters, as one line of text. Throws
/// std::runtime_error.
std::string hashPassword(const std::string& password);

/// Whether a password is the one that was hashed.
bool isPassword(const std::string& password, const std::string& hash);

} // namespace localcloud
