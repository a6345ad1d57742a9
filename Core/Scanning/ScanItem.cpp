// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/ScanItem.h"

#include "Core/HashCombination.h"
#include "Core/Scanning/LastPathComponent.h"

#include <utility>

namespace Korvane {

ScanItem::ScanItem(std::filesystem::path itemUrl, std::optional<std::string> itemDisplayName, std::string itemCategory,
    std::int64_t itemSizeInBytes, bool itemSelectableByDefault)
    : id(Uuid::random())
    , url(std::move(itemUrl))
    , displayName(itemDisplayName ? std::move(*itemDisplayName) : Korvane::displayName(url))
    , category(std::move(itemCategory))
    , sizeInBytes(itemSizeInBytes)
    , selectableByDefault(itemSelectableByDefault)
{
}

} // namespace Korvane

std::size_t std::hash<Korvane::ScanItem>::operator()(const Korvane::ScanItem& item) const noexcept
{
    Korvane::HashCombination combination;
    combination.add(item.id);
    combination.add(item.url.native());
    combination.add(item.displayName);
    combination.add(item.category);
    combination.add(item.sizeInBytes);
    combination.add(item.selectableByDefault);
    return combination.value();
}
