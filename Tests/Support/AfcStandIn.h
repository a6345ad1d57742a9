// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Support/AfcStandInRules.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// The stand-in of "afcclient" in "local/bin" of a folder that Environment::inFolder was given, and the device that it
/// shows: a folder of files.
class AfcStandIn {
public:
    /// Puts the program in place, with a device without any files. Throws std::filesystem::filesystem_error.
    explicit AfcStandIn(const std::filesystem::path& folder);

    /// What it does from the next run on; takes effect with `apply`.
    AfcStandInRules rules;
    void apply() const { rules.write(m_configuration); }

    /// Puts a file on the device, with these contents.
    void add(const std::string& path, const std::string& contents = "a photo") const;
    bool has(const std::string& path) const;

    /// Each run with its arguments, as "run -u UDID", followed by the commands that it read.
    std::vector<std::string> log() const;
    /// How many times it ran.
    std::size_t runs() const;
    void forget() const { std::filesystem::remove(rules.log); }

private:
    std::filesystem::path m_configuration;
};

} // namespace Korvane
