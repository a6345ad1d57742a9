// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Uuid.h"

#include <array>
#include <cstdio>
#include <random>

namespace Korvane {

namespace {

std::mt19937_64 makeGenerator()
{
    std::random_device device;
    std::seed_seq seed{ device(), device(), device(), device(), device(), device(), device(), device() };
    return std::mt19937_64(seed);
}

} // namespace

Uuid Uuid::random()
{
    // A scan makes an identity per finding: a generator of each thread's own costs no system call and no lock.
    thread_local std::mt19937_64 generator = makeGenerator();
    constexpr std::uint64_t versionBits = 0xF000, version4 = 0x4000;
    constexpr std::uint64_t variantBits = 0xC000000000000000, variantRfc4122 = 0x8000000000000000;
    Uuid uuid{ generator(), generator() };
    uuid.high = (uuid.high & ~versionBits) | version4;
    uuid.low = (uuid.low & ~variantBits) | variantRfc4122;
    return uuid;
}

std::string Uuid::toString() const
{
    std::array<char, 37> text{};
    std::snprintf(text.data(), text.size(), "%08llx-%04llx-%04llx-%04llx-%012llx",
        static_cast<unsigned long long>(high >> 32), static_cast<unsigned long long>(high >> 16 & 0xFFFF),
        static_cast<unsigned long long>(high & 0xFFFF), static_cast<unsigned long long>(low >> 48),
        static_cast<unsigned long long>(low & 0xFFFFFFFFFFFF));
    return text.data();
}

} // namespace Korvane
