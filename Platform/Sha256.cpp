// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Sha256.h"

#include <array>
#include <new>

#include <openssl/evp.h>

namespace Korvane {

struct Sha256::Context {
    EVP_MD_CTX* evp = EVP_MD_CTX_new();

    Context() = default;
    ~Context() { EVP_MD_CTX_free(evp); }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;
};

namespace {

/// The library has SHA-256 always; what remains is that memory ran out.
void require(bool succeeded)
{
    if (!succeeded)
        throw std::bad_alloc();
}

} // namespace

Sha256::Sha256()
    : m_context(std::make_unique<Context>())
{
    require(m_context->evp != nullptr && EVP_DigestInit_ex(m_context->evp, EVP_sha256(), nullptr) == 1);
}

Sha256::~Sha256() = default;

void Sha256::update(const void* bytes, std::size_t count)
{
    require(EVP_DigestUpdate(m_context->evp, bytes, count) == 1);
}

std::string Sha256::finalize()
{
    static constexpr char digits[] = "0123456789abcdef";
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int length = 0;
    require(EVP_DigestFinal_ex(m_context->evp, digest.data(), &length) == 1);
    std::string text;
    text.reserve(2 * length);
    for (unsigned int i = 0; i < length; ++i) {
        text += digits[digest[i] >> 4U];
        text += digits[digest[i] & 0x0FU];
    }
    return text;
}

} // namespace Korvane
