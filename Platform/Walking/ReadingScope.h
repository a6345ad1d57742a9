// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace Korvane {

/// While it lives, its thread brings nothing down from a cloud by reading folders: what is only a placeholder is passed
/// over as unreadable. On the thread that made it; scopes may lie inside each other. Nothing to do on Linux.
class ReadingScope {
public:
    ReadingScope() noexcept;
    ~ReadingScope();
    ReadingScope(const ReadingScope&) = delete;
    ReadingScope& operator=(const ReadingScope&) = delete;

private:
    [[maybe_unused]] int m_formerPolicy; // What the host put aside; nothing on Linux.
};

} // namespace Korvane
