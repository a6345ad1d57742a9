// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/ScanItem.h"

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
    std::size_t seed = 0;
    // The golden ratio in 64 bits spreads each member over the whole word.
    const auto combine = [&seed](std::size_t value) {
        seed ^= value + static_cast<std::size_t>(0x9E3779B97F4A7C15ULL) + (seed << 6U) + (seed >> 2U);
    };
    combine(std::hash<Korvane::Uuid>{}(item.id));
    combine(std::hash<std::string>{}(item.url.native()));
    combine(std::hash<std::string>{}(item.displayName));
    combine(std::hash<std::string>{}(item.category));
    combine(std::hash<std::int64_t>{}(item.sizeInBytes));
    combine(std::hash<bool>{}(item.selectableByDefault));
    return seed;
}
