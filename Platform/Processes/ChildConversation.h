// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/ChildResult.h"
#include "Platform/Processes/ChildStart.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <string_view>
#include <vector>

namespace Korvane {

/// Writes a child's input and reads both its outputs as each becomes possible, none waiting for another. One thread,
/// which must have SIGPIPE blocked.
class ChildConversation {
public:
    /// Takes the pipes of `child`; `input` outlives the conversation.
    ChildConversation(StartedChild& child, std::string_view input, std::size_t outputLimit);

    /// Waits at most so long for something to become possible and does it once; false when nothing was.
    bool exchange(std::chrono::milliseconds patience);

    /// Whether nobody holds an output open any more.
    bool isOver() const { return !m_outputs[0].pipe && !m_outputs[1].pipe; }

    /// Gives away what was read.
    void moveOutputsTo(ChildResult& result);

private:
    struct Stream {
        FileDescriptor pipe;
        ChildResult::Output output;
    };

    bool write();
    bool read(Stream& stream);

    FileDescriptor m_inputPipe;
    std::string_view m_input;
    std::size_t m_outputLimit;
    std::array<Stream, 2> m_outputs;
    std::vector<char> m_buffer;
};

} // namespace Korvane
