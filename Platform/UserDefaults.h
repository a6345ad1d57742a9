// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace Korvane {

/// The per-user store of preferences: typed values under text keys.
///
/// Main thread only. A value of another type than asked for, or one that cannot be read, counts as absent. Writing
/// replaces the file atomically; observers hear of each change at once, on the main thread, also when another
/// process made it.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    virtual bool boolForKey(std::string_view key, bool whenAbsent) const = 0;
    virtual std::int64_t integerForKey(std::string_view key, std::int64_t whenAbsent) const = 0;
    virtual double doubleForKey(std::string_view key, double whenAbsent) const = 0;

    /// Each stores a value; false when it could not be written to disk (it is then kept until the program ends).
    virtual bool setBool(std::string_view key, bool value) = 0;
    virtual bool setInteger(std::string_view key, std::int64_t value) = 0;
    virtual bool setDouble(std::string_view key, double value) = 0;

    /// Ends the observation when destroyed.
    class Observation {
    public:
        virtual ~Observation() = default;
    };
    /// Calls `changed` with the key after each change of any value, for as long as the observation lives.
    virtual std::unique_ptr<Observation> observe(std::function<void(std::string_view key)> changed) = 0;
};

/// The preferences of this application for the user of `environment`.
std::shared_ptr<UserDefaults> makeUserDefaults(const Environment& environment);

} // namespace Korvane
