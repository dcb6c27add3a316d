// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/base/rsakey.h"

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>

#include <stdexcept>

namespace localcloud {

namespace {

struct FreeBio
{
    void operator()(BIO* bio) const { BIO_free(bio); }
};
using Bio = std::unique_ptr<BIO, FreeBio>;

struct FreeContext
{
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};
using Context = std::unique_ptr<EVP_MD_CTX, FreeContext>;

const unsigned char* bytesOf(std::string_view text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

} // namespace

void RsaKey::FreeKey::operator()(evp_pkey_st* key) const
{
    EVP_PKEY_free(key);
}

RsaKey::RsaKey(evp_pkey_st* key)
    : m_key(key)
{
    if (!m_key)
        throw std::runtime_error("no usable RSA key");
}

RsaKey RsaKey::generate()
{
    return RsaKey(EVP_RSA_gen(2048));
}

RsaKey RsaKey::fromPem(const std::string& pem)
{
    const Bio bio(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())));
    return RsaKey(PEM_read_bio_PrivateKey(bio.get(), nullptr, nullptr, nullptr));
}

std::string RsaKey::pem() const
{
    const Bio bio(BIO_new(BIO_s_mem()));
    PEM_write_bio_PKCS8PrivateKey(bio.get(), m_key.get(), nullptr, nullptr, 0, nullptr, nullptr);
    char* data = nullptr;
    const long size = BIO_get_mem_data(bio.get(), &data);
    return {data, static_cast<std::size_t>(size)};
}

std::string RsaKey::sign(std::string_view text) const
{
    const Context context(EVP_MD_CTX_new());
    std::string signature(static_cast<std::size_t>(EVP_PKEY_get_size(m_key.get())), '\0');
    std::size_t size = signature.size();
    if (EVP_DigestSignInit(context.get(), nullptr, EVP_sha256(), nullptr, m_key.get()) != 1 ||
        EVP_DigestSign(context.get(), reinterpret_cast<unsigned char*>(signature.data()), &size,
                       bytesOf(text), text.size()) != 1)
        throw std::runtime_error("cannot sign");
    signature.resize(size);
    return signature;
}

bool RsaKey::verifies(std::string_view text, std::string_view signature) const
{
    const Context context(EVP_MD_CTX_new());
    return EVP_DigestVerifyInit(context.get(), nullptr, EVP_sha256(), nullptr, m_key.get()) == 1 &&
           EVP_DigestVerify(context.get(), bytesOf(signature), signature.size(), bytesOf(text),
                            text.size()) == 1;
}

} // namespace localcloud
