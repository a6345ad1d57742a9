// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/LaunchAgentsScanner.h"

#include "Core/Scanning/CancellableSort.h"
#include "Core/TextKeyedDictionary.h"
#include "Core/VisibleChildren.h"
#include "Platform/BackgroundItems.h"
#include "Platform/DisplayText.h"
#include "Platform/PropertyListValue.h"
#include "Platform/ReadingBudget.h"
#include "Platform/TextSearch.h"

#include <numeric>
#include <utility>

namespace Korvane {

namespace {

using Domain = LaunchAgent::Domain;
using Kind = LaunchAgent::Kind;
using Value = PropertyListValue;

/// The first of the arguments, when they are nothing but strings.
std::optional<std::string> firstArgument(const Value& dictionary)
{
    const auto arguments = dictionary.value("ProgramArguments");
    if (!arguments || arguments->kind() != Value::Kind::Array || arguments->size() == 0)
        return std::nullopt;
    for (std::size_t position = 0; position < arguments->size(); ++position) {
        if (arguments->at(position).kind() != Value::Kind::String)
            return std::nullopt;
    }
    return arguments->at(0).string();
}

/// Never fails: what a file does not say is taken from its name, or is absent.
LaunchAgent parse(const std::filesystem::path& url, Domain domain, ReadingBudget& budget)
{
    auto fallback = displayText(url.stem());
    const auto dictionary = textKeyedDictionary(budget.contents(url));
    if (!dictionary)
        return { url, std::move(fallback), std::nullopt, domain };
    auto program = textIn(*dictionary, "Program");
    return { url, textIn(*dictionary, "Label").value_or(std::move(fallback)),
        program ? program : firstArgument(*dictionary), domain };
}

Domain domainOf(BackgroundItem::Owner owner)
{
    return owner == BackgroundItem::Owner::User ? Domain::User : Domain::SystemAgents;
}

Kind kindOf(BackgroundItem::Kind kind)
{
    return kind == BackgroundItem::Kind::Autostart ? Kind::Autostart : Kind::SystemdUnit;
}

/// By label, equal ones in the order in which they are given.
std::vector<LaunchAgent> sorted(const std::vector<LaunchAgent>& agents, const Cancellation& cancellation)
{
    std::vector<std::string_view> labels;
    labels.reserve(agents.size());
    for (const auto& agent : agents)
        labels.push_back(agent.label);
    const auto keys = localizedCaseInsensitiveKeys(labels, cancellation);
    std::vector<std::size_t> order(agents.size());
    std::iota(order.begin(), order.end(), std::size_t{ 0 });
    cancellableStableSort(
        order, cancellation, [&](std::size_t left, std::size_t right) { return keys[left] < keys[right]; });
    std::vector<LaunchAgent> result;
    result.reserve(agents.size());
    for (const auto position : order)
        result.push_back(agents[position]);
    return result;
}

} // namespace

/// One scan: what has been found so far, and what may still be read.
class LaunchAgentsScanner::Scan {
public:
    Scan(const Host& host, const Cancellation& cancellation)
        : m_host(host)
        , m_cancellation(cancellation)
    {
    }

    std::vector<LaunchAgent> run()
    {
        const auto& library = m_host.environment.machineLibrary;
        addFolder(m_host.files->homeDirectoryForCurrentUser() / "Library/LaunchAgents", Domain::User);
        addFolder(library / "LaunchAgents", Domain::SystemAgents);
        addFolder(library / "LaunchDaemons", Domain::SystemDaemons);
        for (auto& item : backgroundItems(m_host.environment, m_cancellation))
            m_agents.emplace_back(std::move(item.file), std::move(item.label), std::move(item.program),
                domainOf(item.owner), kindOf(item.kind));
        return sorted(m_agents, m_cancellation);
    }

private:
    void addFolder(const std::filesystem::path& folder, Domain domain)
    {
        m_cancellation.throwIfCancelled();
        for (const auto& url : visibleChildren(folder, *m_host.files, m_cancellation)) {
            m_cancellation.throwIfCancelled();
            if (url.extension() == ".plist")
                m_agents.push_back(parse(url, domain, m_budget));
        }
    }

    const Host& m_host;
    const Cancellation& m_cancellation;
    ReadingBudget m_budget;
    std::vector<LaunchAgent> m_agents;
};

std::vector<LaunchAgent> LaunchAgentsScanner::scan(const Host& host, const Cancellation& cancellation) const
{
    return Scan(host, cancellation).run();
}

} // namespace Korvane
