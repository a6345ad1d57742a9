// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/ItemPlace.h"

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/Files/OpenFolder.h"

#include <string_view>

namespace Korvane {
namespace {

[[noreturn]] void refuse(const std::filesystem::path& path, const std::string& reason)
{
    throw FileError(path, std::make_error_code(std::errc::invalid_argument), reason);
}

} // namespace

std::filesystem::path itemPath(const std::filesystem::path& path)
{
    std::string_view text = path.native();
    if (text.empty())
        refuse(path, "Nothing was named to be removed.");
    if (text.find('\0') != std::string_view::npos)
        refuse(path, "“" + displayText(path) + "” cannot be the name of a file.");
    if (text.front() != '/')
        refuse(path, "“" + displayText(path) + "” is not a full path.");
    while (!text.empty() && text.back() == '/')
        text.remove_suffix(1);
    if (text.empty())
        refuse(path, "The root of the file system is never removed.");
    const std::string_view name = text.substr(text.rfind('/') + 1);
    if (name == "." || name == "..")
        refuse(path, "“" + displayText(path) + "” does not name an item but a way to one.");
    return { std::string(text) };
}

ItemPlace findItem(const std::filesystem::path& path)
{
    ItemPlace item;
    item.path = itemPath(path);
    const std::string& text = item.path.native();
    const std::size_t slash = text.rfind('/');
    item.name = text.substr(slash + 1);
    int error = openForTraversal(std::string_view(text).substr(0, slash + 1), item.parent);
    if (error == 0)
        error = readStatus(item.parent.get(), "", Links::NotFollowed, item.parentStatus);
    if (error == 0)
        error = readStatus(item.parent.get(), item.name.c_str(), Links::NotFollowed, item.status);
    if (error != 0)
        throw FileError(path, std::error_code(error, std::system_category()));
    return item;
}

} // namespace Korvane
