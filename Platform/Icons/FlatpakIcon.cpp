// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Icons/FlatpakIcon.h"

#include "Platform/Applications/InsideFolder.h"
#include "Platform/Icons/IconImage.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>
#include <vector>

namespace Korvane {
namespace {

struct Candidate {
    int width = 0; ///< The largest there is for images that fit every size.
    std::filesystem::path file;
};

/// The width that a theme's folder is for: "64x64", "64x64@2", "scalable".
int widthOf(const std::string& folder)
{
    if (folder == "scalable")
        return std::numeric_limits<int>::max();
    int width = 0;
    const auto result = std::from_chars(folder.data(), folder.data() + folder.size(), width);
    return result.ec == std::errc() && folder.find('x') != std::string::npos ? width : 0;
}

} // namespace

std::optional<std::string> flatpakIcon(const std::filesystem::path& folder, int pixels)
{
    const auto theme = folder / "current/active/export/share/icons/hicolor";
    const InsideFolder inside(folder);
    std::vector<Candidate> candidates;
    std::error_code error;
    auto entry = std::filesystem::directory_iterator(theme, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const int width = widthOf(entry->path().filename().native());
        for (const char* const extension : { ".png", ".svg" }) {
            const auto file = inside.resolved(entry->path() / "apps" / (folder.filename().native() + extension));
            if (width > 0 && !file.empty())
                candidates.push_back({ width, file });
        }
    }
    // Those that are wide enough come first, the smallest in front; then the others, the widest in front.
    std::sort(candidates.begin(), candidates.end(), [pixels](const auto& left, const auto& right) {
        const bool isLeftEnough = left.width >= pixels;
        if (isLeftEnough != (right.width >= pixels))
            return isLeftEnough;
        return isLeftEnough ? left.width < right.width : left.width > right.width;
    });
    for (const auto& candidate : candidates)
        if (auto image = iconImage(candidate.file))
            return image;
    return std::nullopt;
}

} // namespace Korvane
