// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/StandardStreams.h"

#include <cerrno>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace Korvane {

namespace {

/// Waits until a standard output that does not wait by itself takes more, or a signal comes.
void waitUntilWritable()
{
    pollfd output{ STDOUT_FILENO, POLLOUT, 0 };
    (void)poll(&output, 1, -1);
}

} // namespace

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
    // What was done before a cancel is still to be told: then only a further signal ends the wait for a reader.
    const bool wasCancelled = cancellation.isCancelled();
    while (!text.empty()) {
        const auto count = ::write(STDOUT_FILENO, text.data(), text.size());
        if (count > 0)
            text.remove_prefix(static_cast<std::size_t>(count));
        const int error = count < 0 ? errno : 0;
        if (error == EAGAIN)
            waitUntilWritable();
        else if (error != 0 && error != EINTR)
            throw std::system_error(error, std::generic_category(), "standard output");
        // A signal in mid-write shows as a short count, one before it as an error.
        if (!text.empty() && (!wasCancelled || error == EINTR))
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
