// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Bundle.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Korvane {

namespace {

/// Whether this is a file's name and nothing else.
bool isPlainName(std::string_view name)
{
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos
        && name.find('\0') == std::string_view::npos;
}

/// Whether the path leads, all links followed, to a regular file within the folder.
bool isFileWithin(const std::filesystem::path& folder, const std::filesystem::path& path)
{
    std::error_code error;
    const auto realFolder = std::filesystem::canonical(folder, error);
    if (error)
        return false;
    const auto realPath = std::filesystem::canonical(path, error);
    if (error || !std::filesystem::is_regular_file(realPath, error))
        return false;
    return std::mismatch(realFolder.begin(), realFolder.end(), realPath.begin(), realPath.end()).first
        == realFolder.end();
}

} // namespace

Bundle::Bundle(std::filesystem::path folder)
    : m_folder(std::move(folder))
{
    struct Form {
        const char* information;
        const char* resources;
    };
    static constexpr std::array<Form, 4> forms{ {
        { "Contents/Info.plist", "Contents/Resources" },
        { "Resources/Info.plist", "Resources" },
        { "Info.plist", "" },
        { "WrappedBundle/Info.plist", "WrappedBundle" },
    } };
    for (const auto& form : forms) {
        std::error_code error;
        const auto file = m_folder / form.information;
        if (!std::filesystem::exists(std::filesystem::symlink_status(file, error)))
            continue;
        m_information = PropertyList::read(file);
        m_resources = m_folder / form.resources;
        return;
    }
}

std::optional<Bundle> Bundle::open(const std::filesystem::path& folder)
{
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error))
        return std::nullopt;
    return Bundle(folder);
}

std::optional<std::string> Bundle::text(const char* key) const
{
    const auto value = m_information ? m_information->root().value(key) : std::nullopt;
    auto string = value ? value->string() : std::nullopt;
    return string && !string->empty() ? std::move(string) : std::nullopt;
}

std::optional<std::string> Bundle::bundleIdentifier() const { return text("CFBundleIdentifier"); }

std::optional<std::filesystem::path> Bundle::iconFile() const
{
    const auto name = text("CFBundleIconFile");
    if (!name || !isPlainName(*name))
        return std::nullopt;
    const std::filesystem::path plain(*name);
    const std::array<std::string, 2> candidates{ plain.has_extension() ? *name : *name + ".icns", *name + ".icns" };
    for (const auto& candidate : candidates) {
        auto path = m_resources / candidate;
        if (isFileWithin(m_folder, path))
            return path;
    }
    return std::nullopt;
}

} // namespace Korvane
