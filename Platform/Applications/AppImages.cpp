// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/AppImages.h"

#include "Platform/Applications/AppImageIcons.h"
#include "Platform/Applications/DesktopEntry.h"
#include "Platform/Applications/InsideFolder.h"
#include "Platform/FileDescriptor.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <map>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {
namespace {

struct EntryFile {
    std::string id;
    std::filesystem::path path;
    DesktopEntry entry;
    std::filesystem::path image; ///< Free of links; empty when the entry starts none.
};

/// The image in the home folder that an entry starts; empty when it starts something else.
std::filesystem::path imageOf(const DesktopEntry& entry, const InsideFolder& home)
{
    const auto command = entry.command();
    if (command.empty() || !command.front().starts_with('/'))
        return {};
    auto program = home.resolved(command.front());
    return !program.empty() && isAppImage(program) ? program : std::filesystem::path();
}

/// The user's entries, sorted by id.
std::vector<EntryFile> entriesIn(
    const std::filesystem::path& folder, const InsideFolder& home, const Cancellation& cancellation)
{
    std::vector<EntryFile> files;
    constexpr std::size_t mostEntries = 20'000;
    if (home.resolved(folder).empty())
        return files;
    visitDesktopEntries(folder, [&](const std::string& id, const std::filesystem::path& file) {
        cancellation.throwIfCancelled();
        if (files.size() >= mostEntries)
            return;
        if (auto entry = readDesktopEntry(file); entry && !entry->isHidden) {
            auto image = imageOf(*entry, home);
            files.push_back({ id, file, std::move(*entry), std::move(image) });
        }
    });
    std::sort(files.begin(), files.end(), [](const auto& left, const auto& right) { return left.id < right.id; });
    return files;
}

HostApplication applicationOf(const EntryFile& first)
{
    HostApplication application;
    application.kind = HostApplication::Kind::AppImage;
    application.identifier = first.id;
    application.name = first.entry.name.empty() ? first.image.stem().native() : first.entry.name;
    application.path = first.image;
    return application;
}

} // namespace

bool isAppImage(const std::filesystem::path& file)
{
    const FileDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status { };
    if (!descriptor || ::fstat(descriptor.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    if (file.native().ends_with(".AppImage"))
        return true;
    std::array<char, 11> start{};
    if (::pread(descriptor.get(), start.data(), start.size(), 0) != static_cast<ssize_t>(start.size()))
        return false;
    const std::string_view bytes(start.data(), start.size());
    return bytes.starts_with("\x7F"
                             "ELF")
        && bytes.substr(8, 2) == "AI" && (bytes[10] == 1 || bytes[10] == 2);
}

std::vector<HostApplication> installedAppImages(const Environment& environment, const Cancellation& cancellation)
{
    const InsideFolder home(environment.home);
    const auto files = entriesIn(environment.dataHome() / "applications", home, cancellation);
    std::map<std::filesystem::path, HostApplication> applications;
    AppImageIcons icons(environment.dataHome() / "icons", home);
    for (const auto& file : files) {
        icons.addEntry(file.entry.icon, file.image);
        if (file.image.empty())
            continue;
        auto& application = applications.try_emplace(file.image, applicationOf(file)).first->second;
        application.desktopEntries.push_back(file.path);
    }
    icons.find(cancellation);
    std::vector<HostApplication> sorted;
    for (auto& [image, application] : applications) {
        application.icons = icons.iconsOf(image);
        std::sort(application.desktopEntries.begin(), application.desktopEntries.end());
        sorted.push_back(std::move(application));
    }
    std::sort(sorted.begin(), sorted.end(),
        [](const auto& left, const auto& right) { return left.identifier < right.identifier; });
    return sorted;
}

} // namespace Korvane
