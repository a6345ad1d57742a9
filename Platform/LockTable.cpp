// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/LockTable.h"

#include <ios>
#include <sstream>
#include <string>

namespace Korvane {

namespace {

/// One line: "1: POSIX  ADVISORY  WRITE 1234 08:02:5678 0 EOF", or "1: -> ..." for a request that waits.
struct LockLine {
    std::string kind;
    std::int64_t process = 0;
    LockedFile file;
};

bool parse(const std::string& text, LockLine& line)
{
    std::istringstream words(text);
    std::string number, strength, access, file;
    if (!(words >> number >> line.kind >> strength >> access >> line.process >> file))
        return false;
    std::istringstream parts(file);
    char firstColon = 0, secondColon = 0;
    parts >> std::hex >> line.file.deviceMajor >> firstColon >> line.file.deviceMinor >> secondColon >> std::dec
        >> line.file.inode;
    return !parts.fail() && firstColon == ':' && secondColon == ':';
}

} // namespace

LockMatch findLock(std::istream& table, const LockedFile& file, std::int64_t ownProcess)
{
    LockMatch match = LockMatch::None;
    std::string text;
    while (std::getline(table, text)) {
        LockLine line;
        if (!parse(text, line) || line.process == ownProcess || line.file.inode != file.inode)
            continue;
        if (line.kind != "POSIX" && line.kind != "FLOCK" && line.kind != "OFDLCK")
            continue;
        if (line.file.deviceMajor == file.deviceMajor && line.file.deviceMinor == file.deviceMinor)
            return LockMatch::SameFile;
        match = LockMatch::SameNumberOnAnotherDevice;
    }
    return match;
}

} // namespace Korvane
