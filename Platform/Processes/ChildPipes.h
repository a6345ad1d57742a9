// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Processes/ChildPipe.h"
#include "Platform/Processes/ChildStart.h"

namespace Korvane {

/// The three pipes that a program is born with.
struct ChildPipes {
    /// Opens them; throws FileError on `program`.
    explicit ChildPipes(const std::filesystem::path& program);

    /// The program that was started with them, and our ends, none of which waits any more; the others close.
    StartedChild givenTo(int child) &&;

    ChildPipe input;
    ChildPipe output;
    ChildPipe errorOutput;
};

} // namespace Korvane
