// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/AppImageIcons.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>

namespace Korvane {
namespace {

bool isIconFile(const std::filesystem::path& file)
{
    constexpr std::array<std::string_view, 3> extensions{ ".png", ".svg", ".xpm" };
    return std::find(extensions.begin(), extensions.end(), file.extension().native()) != extensions.end();
}

} // namespace

AppImageIcons::AppImageIcons(std::filesystem::path iconsFolder, const InsideFolder& home)
    : m_iconsFolder(std::move(iconsFolder))
    , m_home(home)
{
}

void AppImageIcons::addEntry(const std::string& icon, const std::filesystem::path& image)
{
    if (!icon.empty())
        m_images[icon].insert(image);
}

const std::filesystem::path* AppImageIcons::ownerOf(const std::string& icon) const
{
    const auto found = m_images.find(icon);
    const bool isOwned = found != m_images.end() && found->second.size() == 1 && !found->second.begin()->empty();
    return isOwned ? &*found->second.begin() : nullptr;
}

/// A picture that merely serves as an icon is the user's and stays.
bool AppImageIcons::isBeside(const std::filesystem::path& icon, const std::filesystem::path& image) const
{
    const auto folder = icon.parent_path();
    return folder == image.parent_path() || folder == image.parent_path() / ".icons"
        || icon.native().starts_with(m_iconsFolder.native() + '/');
}

void AppImageIcons::find(const Cancellation& cancellation)
{
    for (const auto& [icon, images] : m_images) {
        const auto* const owner = ownerOf(icon);
        const std::filesystem::path file = icon;
        if (owner != nullptr && file.is_absolute() && isIconFile(file) && file == file.lexically_normal()
            && isBeside(file, *owner) && !m_home.resolved(file).empty())
            m_found[*owner].insert(file);
    }
    constexpr int loosely = 0;
    constexpr int deepestFolder = 8;
    findIn(m_iconsFolder, loosely, cancellation);
    findIn(m_iconsFolder / "hicolor", deepestFolder, cancellation);
}

void AppImageIcons::findIn(const std::filesystem::path& folder, int depth, const Cancellation& cancellation)
{
    using std::filesystem::directory_options;
    if (m_home.resolved(folder).empty())
        return;
    std::error_code error;
    auto entry
        = std::filesystem::recursive_directory_iterator(folder, directory_options::skip_permission_denied, error);
    for (; !error && entry != std::filesystem::recursive_directory_iterator(); entry.increment(error)) {
        cancellation.throwIfCancelled();
        if (entry.depth() >= depth)
            entry.disable_recursion_pending();
        std::error_code unreadable;
        if (isIconFile(entry->path()) && !std::filesystem::is_directory(entry->symlink_status(unreadable)))
            addNamed(entry->path());
    }
}

void AppImageIcons::addNamed(const std::filesystem::path& file)
{
    // Some entries name the file where its stem is meant.
    const auto* const byStem = ownerOf(file.stem().native());
    const auto* const byName = ownerOf(file.filename().native());
    const bool isDisputed = byStem != nullptr && byName != nullptr && *byStem != *byName;
    if (const auto* const owner = byStem != nullptr ? byStem : byName; owner != nullptr && !isDisputed)
        m_found[*owner].insert(file);
}

std::vector<std::filesystem::path> AppImageIcons::iconsOf(const std::filesystem::path& image) const
{
    const auto found = m_found.find(image);
    if (found == m_found.end())
        return {};
    return { found->second.begin(), found->second.end() };
}

} // namespace Korvane
