// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <utility>

namespace Korvane {

class WalkFolder;

/// Counted reference to a WalkFolder; the last one frees it, and its ancestors in a loop, however many there are.
class WalkFolderReference {
public:
    WalkFolderReference() noexcept = default;
    explicit WalkFolderReference(WalkFolder* folder) noexcept;
    ~WalkFolderReference() { release(std::exchange(m_folder, nullptr)); }
    WalkFolderReference(const WalkFolderReference& other) noexcept
        : WalkFolderReference(other.m_folder)
    {
    }
    WalkFolderReference(WalkFolderReference&& other) noexcept
        : m_folder(std::exchange(other.m_folder, nullptr))
    {
    }
    WalkFolderReference& operator=(WalkFolderReference other) noexcept
    {
        std::swap(m_folder, other.m_folder);
        return *this;
    }

    WalkFolder* get() const noexcept { return m_folder; }
    WalkFolder* operator->() const noexcept { return m_folder; }
    WalkFolder& operator*() const noexcept { return *m_folder; }
    explicit operator bool() const noexcept { return m_folder != nullptr; }

private:
    static void release(WalkFolder* folder) noexcept;

    WalkFolder* m_folder = nullptr;
};

} // namespace Korvane
