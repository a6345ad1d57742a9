// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/StandardStreams.h"

#include <cerrno>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace Korvane {

void StandardStreams::secure()
{
    for (const int descriptor : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO }) {
        if (fcntl(descriptor, F_GETFD) >= 0)
            continue;
        // The lowest free number is this one. Read only: writing a report to it has to fail, not to vanish.
        (void)open("/dev/null", O_RDONLY);
    }
}

void StandardStreams::write(std::string_view text, const Cancellation& cancellation)
{
    while (!text.empty()) {
        const auto count = ::write(STDOUT_FILENO, text.data(), text.size());
        if (count >= 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
            continue;
        }
        if (errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "standard output");
        cancellation.throwIfCancelled();
    }
}

void StandardStreams::complain(std::string_view message)
{
    std::string line = "korvane-cli: ";
    line.append(message).append("\n");
    // There is nobody left to tell when this fails.
    (void)!::write(STDERR_FILENO, line.data(), line.size());
}

} // namespace Korvane
