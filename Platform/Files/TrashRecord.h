// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileDescriptor.h"

#include <string>

namespace Korvane {

/// The info file that reserves a name in a Trash folder; from then on the name is this program's alone.
///
/// Members return 0 or an errno.
class TrashRecord {
public:
    /// `info` is the open folder that records lie in, and outlives this.
    TrashRecord(int info, std::string name)
        : m_info(info)
        , m_name(std::move(name))
    {
    }

    /// Makes the record, complete and on disk, unless the name is taken (EEXIST). Nothing is left after an error.
    int write(const std::string& text);

    /// Whether somebody who empties the Trash has removed the record meanwhile.
    bool isGone() const;

    /// Removes the record: the name was not used after all.
    void takeBack();

    const std::string& name() const noexcept { return m_name; }

private:
    int fill(const std::string& text);

    int m_info;
    std::string m_name;
    FileDescriptor m_file;
};

} // namespace Korvane
