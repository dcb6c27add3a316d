// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <string_view>

struct evp_pkey_st;

namespace localcloud {

/// An RSA key pair for RS256: RSASSA-PKCS1-v1_5 with SHA-256 (RFC 7518, section 3.3).
class RsaKey
{
public:
    /// A new pair with a modulus of 2048 bits. Throws std::runtime_error.
    static RsaKey generate();
    /// Reads a private key, PEM of PKCS#8 or PKCS#1. Throws std::runtime_error.
    static RsaKey fromPem(const std::string& pem);

    /// The private key, PEM of PKCS#8.
    std::string pem() const;
    /// Signature of `text`, as bytes.
    std::string sign(std::string_view text) const;
    /// Whether `signature`, as bytes, is this key's of `text`.
    bool verifies(std::string_view text, std::string_view signature) const;

private:
    struct FreeKey
    {
        void operator()(evp_pkey_st* key) const;
    };
    explicit RsaKey(evp_pkey_st* key);

    std::unique_ptr<evp_pkey_st, FreeKey> m_key;
};

} // namespace localcloud
