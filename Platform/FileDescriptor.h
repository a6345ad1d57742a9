// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <utility>

namespace Korvane {

/// Owns one open file descriptor and closes it. Movable; one thread at a time.
class FileDescriptor {
public:
    FileDescriptor() = default;
    /// Takes what open(2) and its like return; a negative number is none.
    explicit FileDescriptor(int descriptor) noexcept
        : m_descriptor(descriptor)
    {
    }
    ~FileDescriptor() { close(); }

    FileDescriptor(FileDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        if (this != &other) {
            close();
            m_descriptor = std::exchange(other.m_descriptor, -1);
        }
        return *this;
    }

    explicit operator bool() const noexcept { return m_descriptor >= 0; }
    int get() const noexcept { return m_descriptor; }

    /// Gives the descriptor away: the caller closes it.
    int release() noexcept { return std::exchange(m_descriptor, -1); }

    /// Closes now; nothing happens when there is none. Leaves errno as it is.
    void close() noexcept;

private:
    int m_descriptor = -1;
};

} // namespace Korvane
