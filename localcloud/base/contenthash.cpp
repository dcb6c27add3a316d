// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/base/contenthash.h"

#include "localcloud/base/encoding.h"

#include <openssl/evp.h>

#include <array>
#include <cstring>
#include <stdexcept>

namespace localcloud {

namespace {

std::array<std::uint32_t, 256> makeTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < table.size(); ++i) {
        std::uint32_t value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = value >> 1 ^ (value & 1 ? 0x82f63b78U : 0);
        table[i] = value;
    }
    return table;
}

std::uint32_t withTable(std::uint32_t state, std::string_view bytes)
{
    static const std::array<std::uint32_t, 256> table = makeTable();
    for (const char c : bytes)
        state = state >> 8 ^ table[(state ^ static_cast<unsigned char>(c)) & 0xff];
    return state;
}

#ifdef __x86_64__
// The processor's own instruction, eight bytes at a time.
__attribute__((target("sse4.2"))) std::uint32_t withInstruction(std::uint32_t state, std::string_view bytes)
{
    std::uint64_t wide = state;
    for (; bytes.size() >= 8; bytes.remove_prefix(8)) {
        std::uint64_t word;
        std::memcpy(&word, bytes.data(), 8);
        wide = __builtin_ia32_crc32di(wide, word);
    }
    return withTable(static_cast<std::uint32_t>(wide), bytes);
}
#endif

std::uint32_t advance(std::uint32_t state, std::string_view bytes)
{
#ifdef __x86_64__
    if (__builtin_cpu_supports("sse4.2"))
        return withInstruction(state, bytes);
#endif
    return withTable(state, bytes);
}

} // namespace

std::uint32_t crc32c(std::uint32_t sum, std::string_view bytes)
{
    return ~advance(~sum, bytes);
}

void ContentHash::FreeContext::operator()(evp_md_ctx_st* context) const
{
    EVP_MD_CTX_free(context);
}

ContentHash::ContentHash()
    : m_md5(EVP_MD_CTX_new())
{
    if (!m_md5 || EVP_DigestInit_ex(m_md5.get(), EVP_md5(), nullptr) != 1)
        throw std::runtime_error("MD5 is not available");
}

void ContentHash::add(std::string_view bytes)
{
    EVP_DigestUpdate(m_md5.get(), bytes.data(), bytes.size());
    m_sum = crc32c(m_sum, bytes);
}

std::string ContentHash::md5() const
{
    const std::unique_ptr<EVP_MD_CTX, FreeContext> copy(EVP_MD_CTX_new());
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned size = 0;
    EVP_MD_CTX_copy_ex(copy.get(), m_md5.get());
    EVP_DigestFinal_ex(copy.get(), digest.data(), &size);
    return base64Encode({reinterpret_cast<const char*>(digest.data()), size});
}

std::string ContentHash::crc32cText() const
{
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(m_sum >> shift & 0xff);
    return base64Encode(bytes);
}

} // namespace localcloud
