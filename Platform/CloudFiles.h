// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace Korvane {

/// Asks the system, for the whole process, to bring nothing down from a cloud: reading what is only a placeholder here
/// fails instead. To be called once, first of all in main; UserActionScope is the exception. Nothing to do on Linux,
/// whose kernel knows no placeholders.
void leaveCloudFilesInTheCloud() noexcept;

} // namespace Korvane
