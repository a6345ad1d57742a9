// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/WalkFolder.h"

#include "Platform/Walking/DescriptorCache.h"

#include <utility>

namespace Korvane {

WalkFolderReference::WalkFolderReference(WalkFolder* folder) noexcept
    : m_folder(folder)
{
    if (folder)
        folder->m_references.fetch_add(1, std::memory_order_relaxed);
}

void WalkFolderReference::release(WalkFolder* folder) noexcept
{
    while (folder && folder->m_references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        WalkFolder* parent = std::exchange(folder->m_parent.m_folder, nullptr);
        delete folder;
        folder = parent;
    }
}

WalkFolderReference WalkFolder::makeRoot(DescriptorCache& cache, std::string path)
{
    return WalkFolderReference(new WalkFolder(cache, {}, std::move(path), 0));
}

WalkFolderReference WalkFolder::makeChild(WalkFolderReference parent, std::string_view name)
{
    auto& cache = parent->m_cache;
    const auto depth = parent->m_depth + 1;
    return WalkFolderReference(new WalkFolder(cache, std::move(parent), std::string(name), depth));
}

WalkFolder::WalkFolder(DescriptorCache& cache, WalkFolderReference parent, std::string name, std::uint32_t depth)
    : m_depth(depth)
    , m_parent(std::move(parent))
    , m_name(std::move(name))
    , m_cache(cache)
{
}

WalkFolder::~WalkFolder() { m_cache.forget(*this); }

std::string WalkFolder::path() const { return parent() ? parent()->childPath(m_name) : m_name; }

std::string WalkFolder::childPath(std::string_view name) const
{
    const WalkFolder* root = this;
    std::size_t length = name.size() + 1;
    for (; root->parent(); root = root->parent())
        length += root->m_name.size() + 1;
    const bool endsInSeparator = !root->m_name.empty() && root->m_name.back() == '/';
    length += root->m_name.size() - (endsInSeparator ? 1 : 0);

    std::string path(length, '/');
    std::size_t end = length;
    const auto put = [&](std::string_view text) {
        end -= text.size();
        text.copy(path.data() + end, text.size());
    };
    put(name);
    for (const WalkFolder* folder = this; folder->parent(); folder = folder->parent()) {
        --end;
        put(folder->m_name);
    }
    root->m_name.copy(path.data(), root->m_name.size());
    return path;
}

} // namespace Korvane
