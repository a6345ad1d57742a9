// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DirectoryEntry.h"

#include "Platform/Walking/WalkFolder.h"

namespace Korvane {

std::filesystem::path DirectoryEntry::path() const { return m_folder->childPath(m_name); }
std::filesystem::path DirectoryEntry::parentPath() const { return m_folder->path(); }
std::size_t DirectoryEntry::depth() const noexcept { return m_folder->depth(); }

} // namespace Korvane
