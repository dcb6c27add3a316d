// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/auth/credentials.h"
#include "localcloud/base/unixtime.h"
#include "localcloud/http/message.h"

#include <string>

namespace localcloud {

/// Whether a request brings a signature in its query, in the form of version 2.
bool isSigned(const Target& target);

/// The text that version 2 signs: method, Content-MD5, Content-Type, time of expiry and `resource`, which is
/// the URL's path.
std::string stringToSign(const RequestHead& head, const std::string& resource);

/// Throws a Refusal, in the XML interface's form, unless the request is signed by the account and not too
/// late.
void checkSignature(const RequestHead& head, const Credentials& credentials, UnixMs now);

/// An error in the form of the storage service's XML interface. `details` is XML.
Answer xmlError(int status, const std::string& code, const std::string& message,
                const std::string& details = {});

} // namespace localcloud
