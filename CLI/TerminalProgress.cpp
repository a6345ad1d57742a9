// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/TerminalProgress.h"

#include "CLI/Columns.h"
#include "Core/Scanning/FormattedBytes.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace Korvane {

namespace {

/// What a terminal has that does not tell its width.
constexpr std::size_t usualWidth = 80;

std::size_t terminalWidth()
{
    struct winsize size { };
    if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return usualWidth;
    return size.ws_col;
}

void writeToTerminal(const std::string& text)
{
    // A terminal that is gone takes the progress with it; the work goes on.
    (void)!::write(STDERR_FILENO, text.data(), text.size());
}

} // namespace

TerminalProgress::TerminalProgress()
    : m_isTerminal(isatty(STDERR_FILENO) == 1)
{
}

TerminalProgress::~TerminalProgress() { wipe(); }

void TerminalProgress::show(const ScanProgress& progress)
{
    if (!m_isTerminal || !m_throttle.shouldEmit())
        return;
    rewrite(std::to_string(progress.itemsFound) + " found, " + formattedBytes(progress.bytesFound) + "  "
        + progress.currentPath);
}

void TerminalProgress::showCleaning(std::size_t number, std::size_t count, const std::string& path)
{
    showStep("Cleaning", number, count, path);
}

void TerminalProgress::showStep(const std::string& work, std::size_t number, std::size_t count, const std::string& name)
{
    if (!m_isTerminal || !m_throttle.shouldEmit())
        return;
    rewrite(work + " " + std::to_string(number) + " of " + std::to_string(count) + "  " + name);
}

void TerminalProgress::wipe()
{
    if (m_shownColumns == 0)
        return;
    writeToTerminal("\r" + std::string(m_shownColumns, ' ') + "\r");
    m_shownColumns = 0;
}

void TerminalProgress::rewrite(const std::string& line)
{
    // The last column stays free: filling it makes some terminals begin a new line.
    const auto width = terminalWidth() - 1;
    const auto shown = elided(line, width);
    writeToTerminal("\r" + padded(shown, m_shownColumns < width ? m_shownColumns : width));
    m_shownColumns = columns(shown);
}

} // namespace Korvane
