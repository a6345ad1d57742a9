// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace Korvane {

/// While it lives, its thread may bring down from a cloud what it touches: for what the user has asked for by name,
/// such as removing or opening an item, and never for a scan. On the thread that made it. Nothing to do on Linux.
class UserActionScope {
public:
    UserActionScope() noexcept;
    ~UserActionScope();
    UserActionScope(const UserActionScope&) = delete;
    UserActionScope& operator=(const UserActionScope&) = delete;

private:
    [[maybe_unused]] int m_threadPolicy; // What the host put aside; nothing on Linux.
};

} // namespace Korvane
