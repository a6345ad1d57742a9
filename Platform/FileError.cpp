// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileError.h"

#include "Platform/Files/SystemErrorText.h"

#include <utility>

namespace Korvane {
namespace {

std::string describe(const std::error_code& code)
{
    const bool isErrno = code.category() == std::system_category() || code.category() == std::generic_category();
    return isErrno ? systemErrorText(code.value()) : code.message();
}

} // namespace

FileError::FileError(std::filesystem::path path, std::error_code code)
    : std::runtime_error(describe(code))
    , m_path(std::move(path))
    , m_code(code)
{
}

FileError::FileError(std::filesystem::path path, std::error_code code, const std::string& description)
    : std::runtime_error(description)
    , m_path(std::move(path))
    , m_code(code)
{
}

} // namespace Korvane
