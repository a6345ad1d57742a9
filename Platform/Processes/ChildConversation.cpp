// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Processes/ChildConversation.h"

#include "Platform/Files/Retry.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace Korvane {
namespace {

constexpr std::size_t portion = 64 * 1024;

} // namespace

ChildConversation::ChildConversation(StartedChild& child, std::string_view input, std::size_t outputLimit)
    : m_inputPipe(std::move(child.input))
    , m_input(input)
    , m_outputLimit(outputLimit)
    , m_buffer(portion)
{
    m_outputs[0].pipe = std::move(child.output);
    m_outputs[1].pipe = std::move(child.errorOutput);
    if (m_input.empty())
        m_inputPipe.close();
}

bool ChildConversation::exchange(std::chrono::milliseconds patience)
{
    // poll(2) passes over negative descriptors: a closed pipe has one.
    std::array<pollfd, 3> waits{ pollfd{ m_inputPipe.get(), POLLOUT, 0 }, pollfd{ m_outputs[0].pipe.get(), POLLIN, 0 },
        pollfd{ m_outputs[1].pipe.get(), POLLIN, 0 } };
    if (::poll(waits.data(), waits.size(), static_cast<int>(patience.count())) <= 0)
        return false;
    bool hasMoved = waits[0].revents != 0 && write();
    for (std::size_t index = 0; index < m_outputs.size(); ++index)
        if (waits[index + 1].revents != 0)
            hasMoved = read(m_outputs[index]) || hasMoved;
    return hasMoved;
}

bool ChildConversation::write()
{
    const auto length = std::min(m_input.size(), portion);
    const auto count = retryInterrupted([&] { return ::write(m_inputPipe.get(), m_input.data(), length); });
    if (count == -EAGAIN)
        return false;
    // Any other failure says that the program does not want the rest.
    if (count >= 0)
        m_input.remove_prefix(static_cast<std::size_t>(count));
    if (count < 0 || m_input.empty())
        m_inputPipe.close();
    return true;
}

bool ChildConversation::read(Stream& stream)
{
    const auto count = retryInterrupted([&] { return ::read(stream.pipe.get(), m_buffer.data(), m_buffer.size()); });
    if (count == -EAGAIN)
        return false;
    if (count <= 0) {
        stream.pipe.close();
        return true;
    }
    const auto length = static_cast<std::size_t>(count);
    const auto kept = std::min(length, m_outputLimit - stream.output.text.size());
    stream.output.text.append(m_buffer.data(), kept);
    stream.output.isTruncated = stream.output.isTruncated || kept < length;
    return true;
}

void ChildConversation::moveOutputsTo(ChildResult& result)
{
    result.output = std::move(m_outputs[0].output);
    result.errorOutput = std::move(m_outputs[1].output);
}

} // namespace Korvane
