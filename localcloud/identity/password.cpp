// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/identity/password.h"

#include "localcloud/base/encoding.h"
#include "localcloud/base/json.h"

#include <openssl/evp.h>

#include <stdexcept>

namespace localcloud {

namespace {

// About 20 ms: every stream waits meanwhile, for there is one thread.
constexpr std::uint64_t cost = 8192;
constexpr std::uint64_t blockSize = 8;
constexpr std::size_t hashBytes = 32;

std::string scrypt(const std::string& password, const std::string& salt, std::uint64_t n, std::uint64_t r)
{
    constexpr std::uint64_t memory = 64U << 20U; // bytes, at most
    std::string hash(hashBytes, '\0');
    if (EVP_PBE_scrypt(password.data(), password.size(), reinterpret_cast<const unsigned char*>(salt.data()),
                       salt.size(), n, r, 1, memory, reinterpret_cast<unsigned char*>(hash.data()),
                       hash.size()) != 1)
        throw std::runtime_error("scrypt is not available");
    return hash;
}

} // namespace

std::string hashPassword(const std::string& password)
{
    constexpr std::size_t saltBytes = 16;
    const std::string salt = randomBytes(saltBytes);
    const std::string hash = scrypt(password, salt, cost, blockSize);
    return Json::array({"scrypt", cost, blockSize, base64Encode(salt), base64Encode(hash)}).dump();
}

bool isPassword(const std::string& password, const std::string& hash)
{
    const Json parts = Json::parse(hash);
    const std::string salt = base64Decode(parts.at(3).get<std::string>()).value();
    return equalSecrets(base64Encode(scrypt(password, salt, parts.at(1), parts.at(2))),
                        parts.at(4).get<std::string>());
}

} // namespace localcloud
