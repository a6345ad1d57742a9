// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/DateText.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace Korvane {

namespace {

/// The first second of year 1 and the last of year 9998 in universal time, and a day and more within what four digits
/// tell in any zone, counted from 1970.
constexpr std::chrono::seconds earliest{ -62'135'596'800 };
constexpr std::chrono::seconds latest{ 253'370'764'799 };

/// The fields of the calendar, as one of the C library's two functions fills them in; nothing when it cannot.
std::optional<std::tm> fields(AnyDate date, std::tm* (*fill)(const std::time_t*, std::tm*))
{
    const auto second = std::chrono::floor<std::chrono::seconds>(date).time_since_epoch();
    if (second < earliest || second > latest)
        return std::nullopt;
    const auto time = static_cast<std::time_t>(second.count());
    std::tm result{};
    if (fill(&time, &result) == nullptr)
        return std::nullopt;
    return result;
}

std::string day(const std::tm& fields)
{
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday);
    return text.data();
}

} // namespace

std::optional<std::string> localDay(AnyDate date)
{
    const auto local = fields(date, ::localtime_r);
    return local ? std::optional(day(*local)) : std::nullopt;
}

std::optional<std::string> universalTime(AnyDate date)
{
    const auto universal = fields(date, ::gmtime_r);
    if (!universal)
        return std::nullopt;
    std::array<char, 48> text{};
    std::snprintf(
        text.data(), text.size(), "T%02d:%02d:%02dZ", universal->tm_hour, universal->tm_min, universal->tm_sec);
    return day(*universal) + text.data();
}

} // namespace Korvane
