// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Preferences/PreferencesFile.h"

#include "Platform/DisplayText.h"
#include "Platform/FileDescriptor.h"
#include "Platform/SmallFile.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr std::size_t largestFile = 1 << 20;
constexpr std::string_view header = "[General]";

/// Whether what lies at the place of the file can be gone on with.
enum class Condition { Missing, Sound, Damaged };

struct Contents {
    Condition condition = Condition::Missing;
    PreferencesFile::Values values;
};

bool addLine(std::string_view line, PreferencesFile::Values& values)
{
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    if (line.empty() || line.front() == '#' || line.front() == ';' || line == header)
        return true;
    const auto equals = line.find('=');
    if (equals == std::string_view::npos || equals == 0)
        return false;
    values[std::string(line.substr(0, equals))] = line.substr(equals + 1);
    return true;
}

Contents parsed(std::string_view text)
{
    Contents contents;
    bool isSound = isValidUtf8(text) && text.find('\0') == std::string_view::npos;
    while (isSound && !text.empty()) {
        const auto end = text.find('\n');
        isSound = addLine(text.substr(0, end), contents.values);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    if (!isSound)
        return { Condition::Damaged, {} };
    contents.condition = Condition::Sound;
    return contents;
}

Contents contentsOf(const std::filesystem::path& path)
{
    if (const auto text = contentsOfSmallFile(path, largestFile))
        return parsed(*text);
    return { errno == ENOENT || errno == ENOTDIR ? Condition::Missing : Condition::Damaged, {} };
}

std::string textOf(const PreferencesFile::Values& values)
{
    std::string text = std::string(header) + '\n';
    for (const auto& [key, value] : values)
        text += key + '=' + value + '\n';
    return text;
}

bool writeDurably(const std::filesystem::path& path, std::string_view text)
{
    constexpr mode_t userOnly = S_IRUSR | S_IWUSR;
    const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, userOnly));
    if (!file)
        return false;
    while (!text.empty()) {
        const auto count = ::write(file.get(), text.data(), text.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return ::fsync(file.get()) == 0;
}

/// Takes the folder's lock; false when another process keeps it. A volume without such locks does without.
bool lockFolder(const FileDescriptor& folder)
{
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (::flock(folder.get(), LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR))
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return false;
}

std::filesystem::path withSuffix(std::filesystem::path path, const char* suffix)
{
    path += suffix;
    return path;
}

/// Puts the new file in the place of the old one, which is kept when it was no preferences file.
bool replace(const std::filesystem::path& newFile, const std::filesystem::path& path, Condition old)
{
    if (old == Condition::Damaged && std::rename(path.c_str(), withSuffix(path, ".damaged").c_str()) != 0)
        return false;
    return std::rename(newFile.c_str(), path.c_str()) == 0;
}

bool makePrivateFolders(const std::filesystem::path& folder)
{
    if (::mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST)
        return true;
    return errno == ENOENT && folder.has_relative_path() && makePrivateFolders(folder.parent_path())
        && (::mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST);
}

} // namespace

bool PreferencesFile::isKey(std::string_view key)
{
    return !key.empty() && isValidUtf8(key) && key.find_first_of("=\r\n") == std::string_view::npos
        && key.find('\0') == std::string_view::npos
        && std::string_view("#;[").find(key.front()) == std::string_view::npos;
}

PreferencesFile::Values PreferencesFile::read() const { return contentsOf(m_path).values; }

bool PreferencesFile::makeFolder() const { return makePrivateFolders(m_path.parent_path()); }

std::optional<PreferencesFile::Values> PreferencesFile::merge(const Values& changes) const
{
    if (!makeFolder())
        return std::nullopt;
    // A person may keep the file elsewhere and a link to it here: the link stays.
    std::error_code error;
    const auto target = std::filesystem::canonical(m_path, error);
    const auto& path = error ? m_path : target;
    const FileDescriptor folder(::open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder || !lockFolder(folder))
        return std::nullopt;
    auto contents = contentsOf(path);
    for (const auto& [key, value] : changes)
        contents.values[key] = value;
    const auto newFile = withSuffix(path, ".new");
    if (!writeDurably(newFile, textOf(contents.values)) || !replace(newFile, path, contents.condition)) {
        ::unlink(newFile.c_str());
        return std::nullopt;
    }
    ::fsync(folder.get());
    return std::move(contents.values);
}

} // namespace Korvane
