// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/BackgroundItems.h"

#include "Platform/Applications/DesktopEntry.h"
#include "Platform/Background/FolderNames.h"
#include "Platform/Background/UserUnits.h"
#include "Platform/DisplayText.h"
#include "Platform/Processes/InstalledProgram.h"
#include "Platform/ReadingBudget.h"

#include <chrono>
#include <set>
#include <system_error>
#include <utility>

namespace Korvane {

namespace {

using Kind = BackgroundItem::Kind;
using Owner = BackgroundItem::Owner;

/// One listing: what has been found so far, and what may still be read.
class Listing {
public:
    Listing(const Environment& environment, const Cancellation& cancellation)
        : m_environment(environment)
        , m_cancellation(cancellation)
    {
    }

    std::vector<BackgroundItem> run()
    {
        for (const auto& folder : ownFolders(Kind::Autostart, m_environment))
            addAutostart(folder, Owner::User);
        for (const auto& folder : m_environment.xdgConfigDirs)
            addAutostart(folder / "autostart", Owner::AllUsers);
        const auto folders = ownFolders(Kind::SystemdUnit, m_environment);
        for (const auto& unit : UserUnits(folders, m_cancellation).enabled())
            addUnit(unit);
        return std::move(m_items);
    }

private:
    void addAutostart(const std::filesystem::path& folder, Owner owner)
    {
        for (const auto& name : namesInFolder(folder, m_cancellation)) {
            m_cancellation.throwIfCancelled();
            const auto file = folder / name;
            // The first of a name counts, also when all that it does is hide the others.
            if (file.extension() != ".desktop" || !m_names.insert(name).second)
                continue;
            addEntry(file, owner);
        }
    }

    void addEntry(const std::filesystem::path& file, Owner owner)
    {
        std::error_code error;
        if (!std::filesystem::is_regular_file(file, error))
            return;
        BackgroundItem item{ file, displayText(file.stem()), std::nullopt, Kind::Autostart, owner };
        if (const auto text = m_budget.contents(file)) {
            const auto entry = parseDesktopEntry(*text);
            if (!entry || entry->isHidden)
                return;
            if (!entry->name.empty())
                item.label = displayText(std::string_view(entry->name));
            if (const auto command = entry->command(); !command.empty())
                item.program = displayText(std::string_view(command.front()));
        }
        m_items.push_back(std::move(item));
    }

    void addUnit(const std::filesystem::path& unit)
    {
        m_cancellation.throwIfCancelled();
        const auto text = m_budget.contents(unit);
        m_items.push_back({ unit, unit.filename().native(), text ? programOfUnit(*text) : std::nullopt,
            Kind::SystemdUnit, Owner::User });
    }

    const Environment& m_environment;
    const Cancellation& m_cancellation;
    ReadingBudget m_budget;
    std::set<std::string> m_names;
    std::vector<BackgroundItem> m_items;
};

} // namespace

std::vector<BackgroundItem> backgroundItems(const Environment& environment, const Cancellation& cancellation)
{
    cancellation.throwIfCancelled();
    return Listing(environment, cancellation).run();
}

std::vector<std::filesystem::path> ownFolders(BackgroundItem::Kind kind, const Environment& environment)
{
    if (kind == Kind::Autostart)
        return { environment.configHome() / "autostart" };
    // systemd.unit(5): the first counts most, and the links that enable a unit lie in it.
    return { environment.configHome() / "systemd/user", environment.dataHome() / "systemd/user" };
}

std::optional<ChildProcess> unitStop(const std::filesystem::path& unit, const Environment& environment)
{
    const auto manager = installedProgram(environment.programFolders, "systemctl");
    if (manager.empty())
        return std::nullopt;
    ChildProcess stop;
    stop.program = manager;
    stop.arguments = { "--user", "disable", "--now", "--" };
    const auto names = UserUnits(ownFolders(Kind::SystemdUnit, environment), {}).runningNames(unit);
    stop.arguments.insert(stop.arguments.end(), names.begin(), names.end());
    // By default a unit is given 90 seconds to stop before it is killed (systemd-system.conf(5)).
    stop.timeLimit = std::chrono::minutes(3);
    return stop;
}

} // namespace Korvane
