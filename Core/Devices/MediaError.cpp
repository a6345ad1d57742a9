// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/MediaError.h"

#include "Platform/Localized.h"

namespace Korvane {

MediaError::MediaError(Kind kind, const std::string& description)
    : std::runtime_error(description)
    , m_kind(kind)
{
}

MediaError MediaError::afcFailed(const std::string& message) { return { Kind::AfcFailed, message }; }

MediaError MediaError::toolMissing()
{
    return { Kind::ToolMissing, localized("Errors", "afcclient not found — install libimobiledevice") };
}

} // namespace Korvane
