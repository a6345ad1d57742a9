// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace Korvane {

/// Runs `work` in a child process without root's rights and returns its answer.
///
/// Under root the child becomes user and group 65534; otherwise it stays who it is. What the child throws comes back as
/// "exception: " and its text, its death as "died of signal " and the number. The test framework's checks do not count
/// in there: let `work` return what it saw.
std::string runAsOrdinaryUser(const std::function<std::string()>& work);

/// Gives a folder tree (links themselves, never what they name) to the user of runAsOrdinaryUser; nothing without root.
void giveToOrdinaryUser(const std::filesystem::path& folder);

} // namespace Korvane
