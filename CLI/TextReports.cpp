// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Columns.h"
#include "CLI/CommandLine.h"
#include "CLI/Reports.h"

#include "Core/Scanning/FormattedBytes.h"
#include "Core/Scanning/LastPathComponent.h"
#include "Platform/Checked.h"
#include "Platform/DisplayText.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace Korvane {

namespace {

constexpr std::size_t countWidth = 14;

constexpr const char* nothingFound = "Nothing found to clean in this module.\n";

/// Items under one heading.
struct Group {
    std::string_view category;
    std::vector<const ScanItem*> items;
    std::int64_t bytes = 0;
};

/// The items by category, in the order in which each category first occurs.
std::vector<Group> groups(const std::vector<ScanItem>& items)
{
    std::vector<Group> found;
    std::unordered_map<std::string_view, std::size_t> positions;
    for (const auto& item : items) {
        const auto [position, isNew] = positions.try_emplace(item.category, found.size());
        if (isNew)
            found.push_back({ item.category, {}, 0 });
        auto& group = found[position->second];
        group.items.push_back(&item);
        group.bytes = checkedAdd(group.bytes, item.sizeInBytes);
    }
    return found;
}

std::string countOfItems(std::size_t count) { return std::to_string(count) + (count == 1 ? " item" : " items"); }

/// What a display name says more than the name of the file does, such as which copy is the original.
std::string remark(const ScanItem& item)
{
    const auto name = displayName(item.url);
    return item.displayName.compare(0, name.size(), name) == 0 ? item.displayName.substr(name.size()) : std::string();
}

/// Said of a copy alone where the original loses nothing.
std::string sharedRemark(const ScanItem& item, const SharedStorageOfItems& shared)
{
    const auto found = shared.find(item.id);
    if (found == shared.end())
        return {};
    if (found->second == SharedStorage::OneName)
        return " (the same file as another path of this set: cleaning one removes both)";
    return item.selectableByDefault ? " (another name of the original: removing it alone frees no space)" : "";
}

std::string line(const ScanItem& item, std::string_view mark, const SharedStorageOfItems& shared)
{
    return "  " + std::string(mark) + paddedLeft(formattedBytes(item.sizeInBytes), sizeWidth) + "  "
        + displayText(item.url) + remark(item) + sharedRemark(item, shared) + "\n";
}

void appendSteps(std::string& text, const CleaningPlan& plan, Cleaner::Action action, std::string_view heading)
{
    bool isFirst = true;
    for (const auto& step : plan.steps) {
        if (step.action != action)
            continue;
        if (isFirst)
            text.append(heading).append("\n");
        isFirst = false;
        text += line(step.item, "", plan.shared);
    }
}

} // namespace

std::string findingsAsText(const std::vector<ScanItem>& items, const SharedStorageOfItems& shared)
{
    if (items.empty())
        return nothingFound;
    const auto found = groups(items);
    std::size_t width = 0;
    for (const auto& group : found)
        width = std::max(width, columns(group.category));
    std::string text;
    std::int64_t total = 0;
    std::int64_t selectedBytes = 0;
    std::size_t selectedCount = 0;
    for (const auto& group : found) {
        text += padded(group.category, width) + paddedLeft(countOfItems(group.items.size()), countWidth)
            + paddedLeft(formattedBytes(group.bytes), sizeWidth + 2) + "\n";
        for (const auto* item : group.items) {
            text += line(*item, item->selectableByDefault ? "[x]" : "[ ]", shared);
            if (item->selectableByDefault) {
                selectedBytes = checkedAdd(selectedBytes, item->sizeInBytes);
                ++selectedCount;
            }
        }
        text += "\n";
        total = checkedAdd(total, group.bytes);
    }
    return text + "Total: " + countOfItems(items.size()) + ", " + formattedBytes(total)
        + "; pre-selected [x]: " + countOfItems(selectedCount) + ", " + formattedBytes(selectedBytes) + "\n";
}

std::string planAsText(const CleaningPlan& plan)
{
    if (plan.steps.empty() && plan.selection == CommandLine::Selection::All)
        return nothingFound;
    if (plan.steps.empty())
        return "There is nothing to do: no finding is pre-selected. --all and --item take others.\n";
    std::string text;
    appendSteps(text, plan, Cleaner::Action::MoveToTrash, "Would be moved to the Trash:");
    appendSteps(text, plan, Cleaner::Action::Delete, "Would be deleted for good:");
    appendSteps(text, plan, Cleaner::Action::EmptyTrash, "Would be emptied, its contents deleted for good:");
    std::int64_t total = 0;
    for (const auto& step : plan.steps)
        total = checkedAdd(total, step.item.sizeInBytes);
    return text + "\n" + countOfItems(plan.steps.size()) + ", " + formattedBytes(total)
        + ". Nothing has been changed; --yes does it.\n";
}

std::string resultAsText(const Cleaner::Result& result)
{
    std::string text = formattedBytes(result.cleanedBytes) + " cleaned\n" + std::to_string(result.cleanedCount)
        + " items moved to Trash or removed\n";
    if (result.failures.empty())
        return text;
    text += std::to_string(result.failures.size()) + " items could not be removed\n";
    for (const auto& failure : result.failures)
        text += "  " + displayText(failure.url) + ": " + failure.message + "\n";
    return text;
}

std::string modulesAsText()
{
    std::size_t nameWidth = 0;
    std::size_t titleWidth = 0;
    for (const auto module : allCleanerModules) {
        nameWidth = std::max(nameWidth, columns(rawValue(module)));
        titleWidth = std::max(titleWidth, columns(title(module)));
    }
    std::string text;
    for (const auto module : allCleanerModules) {
        text += padded(rawValue(module), nameWidth + 2) + padded(title(module), titleWidth + 2)
            + std::string(subtitle(module)) + (isScannable(module) ? "" : " (not for the terminal)") + "\n";
    }
    return text;
}

} // namespace Korvane
