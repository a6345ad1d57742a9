// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace Korvane {

/// Moments as words that tell how far they are from now, named where the language has a name: "yesterday", "2 hours
/// ago", "next week", "in 5 minutes", "now".
///
/// The unit is the largest of year, month, week, day, hour, minute and second of which at least one whole has passed
/// or is to come. Seconds, minutes and hours are counted whole. Days and what is larger are counted as the calendar
/// turns them, in the user's time zone and with the locale's first day of the week, so that "yesterday" is always the
/// day before today: 25 hours ago is "yesterday", 23 hours ago never is, and 47 hours ago may be "2 days ago".
class RelativeDate {
public:
    /// Of a moment and now, both in seconds since 1970-01-01 00:00 UTC, in the user's locale, UTF-8. Any thread.
    ///
    /// A moment further away than a thousand years counts as just that far; one that is no number, or infinite, has no
    /// text.
    static std::string string(double moment, double now);

    /// The same in the locale and the time zone of these names ("de_DE", "Europe/Berlin"). An unknown locale gives the
    /// root locale's forms, an unknown time zone is that of Greenwich.
    static std::string string(
        double moment, double now, const std::string& localeName, const std::string& timeZoneName);
};

} // namespace Korvane
