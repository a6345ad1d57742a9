// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyList.h"

#include "Platform/PropertyLists/BinaryPropertyList.h"
#include "Platform/PropertyLists/PropertyListStore.h"
#include "Platform/PropertyLists/XmlPropertyList.h"
#include "Platform/SmallFile.h"

#include <utility>

namespace Korvane {

PropertyList::PropertyList(std::shared_ptr<const PropertyListStore> store) noexcept
    : m_store(std::move(store))
{
}

std::optional<PropertyList> PropertyList::parse(std::string_view bytes)
{
    if (bytes.size() > largestSize)
        return std::nullopt;
    auto store = isBinaryPropertyList(bytes) ? parseBinaryPropertyList(bytes) : parseXmlPropertyList(bytes);
    if (!store)
        return std::nullopt;
    return PropertyList(std::make_shared<const PropertyListStore>(std::move(*store)));
}

std::optional<PropertyList> PropertyList::read(const std::filesystem::path& path)
{
    const auto bytes = contentsOfSmallFile(path, largestSize);
    return bytes ? parse(*bytes) : std::nullopt;
}

PropertyList::Value PropertyList::root() const { return { m_store, m_store->root }; }

std::size_t PropertyList::valueCount() const noexcept { return m_store->entries.size(); }

} // namespace Korvane
