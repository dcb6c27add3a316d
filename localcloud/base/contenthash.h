// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct evp_md_ctx_st;

namespace localcloud {

/// CRC-32C (RFC 3720, appendix B.4) of `bytes` behind bytes whose sum is `sum`; 0 for none.
std::uint32_t crc32c(std::uint32_t sum, std::string_view bytes);

/// MD5 and CRC-32C of an object's content, taken in as it arrives.
class ContentHash
{
public:
    ContentHash();

    void add(std::string_view bytes);

    /// Base64 of what was taken in so far; more may follow.
    std::string md5() const;
    /// Base64 of the sum in big-endian order of what was taken in so far; more may follow.
    std::string crc32cText() const;

private:
    struct FreeContext
    {
        void operator()(evp_md_ctx_st* context) const;
    };
    std::unique_ptr<evp_md_ctx_st, FreeContext> m_md5;
    std::uint32_t m_sum = 0;
};

} // namespace localcloud
