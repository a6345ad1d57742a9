// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace Korvane {

/// Work that threads of the ReaderPool may join.
class ReaderJob {
public:
    virtual ~ReaderJob() = default;

    /// Does its share, on a thread of the pool, until nothing is left to take or ReaderPool::isStopping().
    virtual void help() = 0;
};

} // namespace Korvane
