// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace Korvane {

/// A path that may be longer than the system takes at once: its leading folders are opened, the rest is relative.
///
/// A path of ordinary length costs nothing. When a leading folder cannot be opened, folder() is no descriptor, so that
/// the call that was to follow fails with EBADF.
class LongPath {
public:
    explicit LongPath(const std::string& path);
    ~LongPath();
    LongPath(const LongPath&) = delete;
    LongPath& operator=(const LongPath&) = delete;

    /// Whether the leading folders could be opened; right after the construction errno says why not.
    bool isReachable() const noexcept { return m_folder != noDescriptor; }

    /// What relative() is relative to: AT_FDCWD, or a descriptor that lives as long as this object.
    int folder() const noexcept { return m_folder; }
    const char* relative() const noexcept { return m_relative.c_str(); }

private:
    static constexpr int noDescriptor = -1;

    std::string m_relative;
    int m_folder;
    bool m_isOpened = false;
};

} // namespace Korvane
