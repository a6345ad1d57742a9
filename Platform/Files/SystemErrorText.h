// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace Korvane {

/// The platform's text for an errno value in the user's language, UTF-8. Any thread.
std::string systemErrorText(int error);

} // namespace Korvane
