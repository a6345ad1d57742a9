// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <string>
#include <vector>

namespace Korvane {

/// How a deletion of files from a device has ended. A plain value.
struct MediaDeletion {
    quint64 id = 0; ///< Which one it was.
    std::string udid; ///< Of the device.
    std::size_t asked = 0; ///< How many files were to go.
    std::size_t remaining = 0; ///< How many of them are still there.
    std::vector<std::string> gone; ///< The paths that are not known to be there still.
    QString error; ///< Why it is not known what is still there; empty otherwise.
};

} // namespace Korvane
