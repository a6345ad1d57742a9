// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <stdexcept>

namespace Korvane {

/// The command line asks for something that there is not; `what()` says what is right.
class UsageError final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace Korvane
