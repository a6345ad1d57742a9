// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace Korvane {

/// An SHA-256 digest (FIPS 180-4) computed piece by piece. Any thread, one at a time.
class Sha256 {
public:
    Sha256();
    ~Sha256();
    Sha256(const Sha256&) = delete;
    Sha256& operator=(const Sha256&) = delete;

    void update(const void* bytes, std::size_t count);

    /// The digest of all bytes so far as 64 lower-case hexadecimal digits; ends the computation.
    std::string finalize();

private:
    struct Context;
    std::unique_ptr<Context> m_context;
};

} // namespace Korvane
