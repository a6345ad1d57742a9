// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Hashing/UpcomingPortions.h"

#include <algorithm>
#include <utility>

namespace Korvane {

namespace {

/// How far ahead the system is told: enough to keep a disk busy while a portion is hashed, and little enough to be
/// still in memory when its turn comes.
constexpr std::int64_t mostBytesAhead = 16'777'216;
constexpr std::size_t mostFilesAhead = 8;

} // namespace

std::int64_t UpcomingPortion::knownBytes() const
{
    return file ? std::clamp<std::int64_t>(file->size() - range.offset, 0, range.count) : 0;
}

UpcomingPortions::UpcomingPortions(
    std::size_t files, PathAt pathAt, std::int64_t prefixBytes, Cancellation cancellation)
    : m_files(files)
    , m_pathAt(std::move(pathAt))
    , m_prefixBytes(std::max<std::int64_t>(prefixBytes, 0))
    , m_cancellation(std::move(cancellation))
{
}

UpcomingPortions::~UpcomingPortions()
{
    while (!m_portions.empty())
        pop();
}

void UpcomingPortions::lookAhead()
{
    while (m_portions.size() < mostFilesAhead && m_plannedBytes < mostBytesAhead && planNext()) { }
}

bool UpcomingPortions::planNext()
{
    if (!m_file && !openNext())
        return false;
    if (!m_file->isOpen()) {
        m_portions.push_back({});
        m_file.reset();
        return true;
    }
    const FileRange range{ m_offset, std::min(largestPortion, m_prefixBytes - m_offset) };
    const bool isLast = range.end() >= std::min(m_prefixBytes, m_file->size());
    m_portions.push_back({ m_file, range, isLast, tellAhead(range) });
    m_plannedBytes += m_portions.back().knownBytes();
    m_offset = range.end();
    if (isLast)
        m_file.reset();
    return true;
}

bool UpcomingPortions::openNext()
{
    if (m_next == m_files)
        return false;
    auto file = std::make_shared<const DigestFile>(m_pathAt(m_next));
    // Tried again when the files that were opened ahead are closed.
    if (file->lacksDescriptor() && !m_portions.empty())
        return false;
    ++m_next;
    m_file = std::move(file);
    m_offset = 0;
    return true;
}

std::vector<FileRange> UpcomingPortions::tellAhead(FileRange range)
{
    // Another name of a file that is about to be read finds in memory what was fetched for that one: whoever reads it
    // last gives it back.
    for (auto& earlier : m_portions) {
        if (earlier.file && earlier.range.offset == range.offset && earlier.file->isSameFileAs(*m_file)
            && !earlier.broughtIn.empty())
            return std::exchange(earlier.broughtIn, {});
    }
    return m_file->tellAhead(range, m_cancellation);
}

void UpcomingPortions::pop()
{
    const auto& portion = m_portions.front();
    if (portion.file)
        portion.file->giveBack(portion.broughtIn);
    m_plannedBytes -= portion.knownBytes();
    m_portions.pop_front();
}

void UpcomingPortions::popWholeFile()
{
    const auto file = m_portions.front().file;
    do
        pop();
    while (!m_portions.empty() && file && m_portions.front().file == file);
    if (m_file == file)
        m_file.reset();
}

} // namespace Korvane
