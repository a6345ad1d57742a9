// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/PrivateRoot.h"

#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/EnterRoot.h"

namespace Korvane {

std::optional<std::string> runInPrivateRoot(
    const std::filesystem::path& folder, const std::function<std::string()>& work)
{
    const std::string refused = "the private root is refused";
    auto answer = runInChild([&] { return enterRoot(folder) ? work() : refused; });
    if (answer == refused)
        return std::nullopt;
    return answer;
}

} // namespace Korvane
