// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Processes/ChildPipes.h"

#include <utility>

namespace Korvane {

ChildPipes::ChildPipes(const std::filesystem::path& program)
    : input(ChildPipe::open(program))
    , output(ChildPipe::open(program))
    , errorOutput(ChildPipe::open(program))
{
}

StartedChild ChildPipes::givenTo(int child) &&
{
    for (const auto* end : { &input.writeEnd, &output.readEnd, &errorOutput.readEnd })
        setNonBlocking(*end);
    return { child, std::move(input.writeEnd), std::move(output.readEnd), std::move(errorOutput.readEnd) };
}

} // namespace Korvane
