// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Walking/PlainWalk.h"

#include "Platform/FileStatus.h"
#include "Platform/PackageExtensions.h"

#include <algorithm>
#include <sstream>

#include <dirent.h>
#include <sys/stat.h>

namespace Korvane {

namespace fs = std::filesystem;

namespace {

struct Described {
    fs::path path;
    EntryType type;
    bool isPackage;
    std::size_t depth;
    std::optional<std::int64_t> allocated, size, modified;
};

std::string textOf(const Described& entry)
{
    std::ostringstream text;
    const auto number = [](std::optional<std::int64_t> value) { return value ? std::to_string(*value) : "-"; };
    text << entry.path.native() << " type " << static_cast<int>(entry.type) << " package " << entry.isPackage
         << " depth " << entry.depth << " allocated " << number(entry.allocated) << " size " << number(entry.size)
         << " modified " << number(entry.modified);
    return text.str();
}

std::string textOfPassedOver(const fs::path& folder) { return folder.native() + " holds a file passed over"; }

EntryType typeOf(const struct stat& status)
{
    if (S_ISREG(status.st_mode))
        return EntryType::RegularFile;
    if (S_ISDIR(status.st_mode))
        return EntryType::Directory;
    return S_ISLNK(status.st_mode) ? EntryType::SymbolicLink : EntryType::Other;
}

std::vector<std::string> listing(const fs::path& folder)
{
    std::vector<std::string> names;
    DIR* stream = ::opendir(folder.c_str());
    if (!stream)
        return names;
    while (const dirent* entry = ::readdir(stream)) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..")
            names.push_back(name);
    }
    ::closedir(stream);
    return names;
}

class PlainWalker {
public:
    PlainWalker(const EnumerationOptions& options, const SkipRule& skip)
        : m_options(options)
        , m_skip(skip)
    {
    }

    void walk(const fs::path& folder, std::size_t depth) // NOLINT(misc-no-recursion)
    {
        for (const auto& name : listing(folder)) {
            const auto path = folder / name;
            if (m_options.hiddenFiles == HiddenFiles::Skipped && name.front() == '.')
                continue;
            struct stat status { };
            ::lstat(path.c_str(), &status);
            const bool isPackage = S_ISDIR(status.st_mode) && hasPackageExtension(name);
            const auto entry = described(path, status, isPackage, depth);
            m_entries.push_back(isPassedOver(entry) ? textOfPassedOver(folder) : textOf(entry));
            if (S_ISDIR(status.st_mode) && isEntered(path, name, isPackage))
                walk(path, depth + 1);
        }
    }

    std::vector<std::string> takeEntries() { return std::move(m_entries); }

private:
    Described described(const fs::path& path, const struct stat& status, bool isPackage, std::size_t depth) const
    {
        Described entry{ path, typeOf(status), isPackage, depth, {}, {}, {} };
        if (m_options.values == PrefetchedValues::AllValues
            || (m_options.values == PrefetchedValues::FileValues && !S_ISDIR(status.st_mode))) {
            entry.allocated = std::int64_t{ status.st_blocks } * 512;
            entry.size = status.st_size;
            entry.modified = modificationDate(status).time_since_epoch().count();
        }
        if (m_options.values == PrefetchedValues::AllocatedSizes && !S_ISDIR(status.st_mode))
            entry.allocated = std::int64_t{ status.st_blocks } * 512;
        return entry;
    }

    bool isPassedOver(const Described& entry) const
    {
        return entry.type == EntryType::RegularFile
            && ((entry.allocated && *entry.allocated < m_options.smallestAllocatedSize)
                || (entry.size && *entry.size < m_options.smallestFileSize));
    }

    bool isEntered(const fs::path& path, const std::string& name, bool isPackage) const
    {
        const auto& never = m_options.pathsNeverEntered;
        return !(isPackage && m_options.packageDescendants == PackageDescendants::Skipped)
            && !(m_options.namesNeverEntered && m_options.namesNeverEntered->contains(name))
            && std::find(never.begin(), never.end(), path) == never.end() && !(m_skip && m_skip(path));
    }

    const EnumerationOptions& m_options;
    const SkipRule& m_skip;
    std::vector<std::string> m_entries;
};

} // namespace

std::string describe(const DirectoryEntry& entry)
{
    const auto& values = entry.values();
    Described described{ entry.path(), entry.type(), entry.isPackage(), entry.depth(), values.totalFileAllocatedSize,
        values.fileSize, {} };
    if (values.contentModificationDate)
        described.modified = values.contentModificationDate->time_since_epoch().count();
    auto text = textOf(described);
    if (entry.parentPath() / entry.name() != entry.path())
        text += " parent " + entry.parentPath().native();
    return entry.hasValues() ? text : text + " without values";
}

std::vector<std::string> walked(const fs::path& root, const EnumerationOptions& options, const SkipRule& skip)
{
    std::vector<std::string> entries;
    DirectoryEnumerator walk(root, options);
    while (const auto* entry = walk.next()) {
        if (entry->passedOver() > 0) {
            entries.insert(entries.end(), entry->passedOver(), textOfPassedOver(entry->parentPath()));
            continue;
        }
        entries.push_back(describe(*entry));
        if (skip && skip(entry->path()))
            walk.skipDescendants();
    }
    return entries;
}

std::vector<std::string> walkedPlainly(const fs::path& root, const EnumerationOptions& options, const SkipRule& skip)
{
    PlainWalker walker(options, skip);
    walker.walk(root, 0);
    return walker.takeEntries();
}

std::vector<std::string> namesOf(const fs::path& root, const EnumerationOptions& options)
{
    std::vector<std::string> names;
    DirectoryEnumerator walk(root, options);
    while (const auto* entry = walk.next())
        names.emplace_back(entry->name());
    return names;
}

std::int64_t allocatedPlainly(const fs::path& root) // NOLINT(misc-no-recursion)
{
    std::int64_t total = 0;
    for (const auto& name : listing(root)) {
        struct stat status { };
        ::lstat((root / name).c_str(), &status);
        if (S_ISREG(status.st_mode))
            total += std::int64_t{ status.st_blocks } * 512;
        else if (S_ISDIR(status.st_mode))
            total += allocatedPlainly(root / name);
    }
    return total;
}

} // namespace Korvane
