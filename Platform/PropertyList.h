// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/PropertyListValue.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

namespace Korvane {

/// A property list, as the platform writes preferences and descriptions: XML or binary ("bplist00").
///
/// Whatever a file says, reading takes time and memory linear in its size: values that refer to each other stay
/// references, every count and offset is checked before anything is allocated for it, and nothing recurses. XML is
/// refused when elements lie deeper than `deepestElement` or when it defines anything of its own in its document
/// type. Of two equal keys the first counts. The older text form ("{ key = value; }") is not read. Any thread.
class PropertyList {
public:
    using Value = PropertyListValue;

    /// The largest list that is read, in bytes: a hundred times the largest description seen in any application.
    static constexpr std::size_t largestSize = std::size_t{ 16 } * 1024 * 1024;
    /// How deep containers may lie in each other in XML.
    static constexpr std::size_t deepestElement = 512;

    /// The list that these bytes hold; nothing when they are malformed in any part or too many.
    static std::optional<PropertyList> parse(std::string_view bytes);

    /// The list in a regular file; nothing when it cannot be read or parsed. Never waits for a pipe or a device.
    static std::optional<PropertyList> read(const std::filesystem::path& path);

    /// The value that holds all others; usually, but not always, a Dictionary.
    Value root() const;

    /// How many values the list holds, each counted once however often it is referred to.
    std::size_t valueCount() const noexcept;

private:
    explicit PropertyList(std::shared_ptr<const PropertyListStore> store) noexcept;

    std::shared_ptr<const PropertyListStore> m_store;
};

} // namespace Korvane
