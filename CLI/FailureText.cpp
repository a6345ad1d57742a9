// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/FailureText.h"

#include "Platform/DisplayText.h"
#include "Platform/FileError.h"

namespace Korvane {

std::string failureText(const std::exception& error)
{
    const auto* const fileError = dynamic_cast<const FileError*>(&error);
    if (fileError == nullptr || fileError->path().empty())
        return error.what();
    return displayText(fileError->path()) + ": " + fileError->localizedDescription();
}

} // namespace Korvane
