// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace Korvane {

/// Breeds inputs from seeds: the same ones on every machine for the same number.
class Mutator {
public:
    /// `seeds` must not be empty.
    Mutator(std::vector<std::string> seeds, std::uint64_t number);

    /// The next input: some seed, changed in one to four places.
    std::string next();

private:
    std::size_t below(std::size_t bound);
    std::uint64_t oddNumber();
    void change(std::string& input);

    std::vector<std::string> m_seeds;
    std::mt19937_64 m_random;
};

} // namespace Korvane
