// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

namespace Korvane {

/// Sets, or without a value unsets, a variable of the process environment until the end of its life. One thread.
class EnvironmentVariable {
public:
    EnvironmentVariable(std::string name, const std::optional<std::string>& value)
        : m_name(std::move(name))
    {
        if (const char* former = std::getenv(m_name.c_str()))
            m_former = former;
        set(value);
    }
    ~EnvironmentVariable() { set(m_former); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    void set(const std::optional<std::string>& value) const
    {
        if (value)
            ::setenv(m_name.c_str(), value->c_str(), 1);
        else
            ::unsetenv(m_name.c_str());
    }

    std::string m_name;
    std::optional<std::string> m_former;
};

} // namespace Korvane
