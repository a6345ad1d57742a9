// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"
#include "Platform/FileDescriptor.h"

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QLocalServer>
#include <QObject>

#include <chrono>
#include <filesystem>
#include <optional>

namespace Korvane {

/// Lets this application run once for a user, a home and a desktop session: whoever starts it again brings to the front
/// what runs.
///
/// Main thread. The first one holds a lock that ends with its process, however that ends, and listens on a socket that
/// only this user can reach. Both are put back when something cleans them away, as is done in temporary folders.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    enum class Outcome {
        First, ///< Nobody else runs, or it cannot be known: go on.
        Shown, ///< Another one runs and has come to the front.
        Silent, ///< Another one runs but does not answer.
    };

    /// How long another one is given to answer.
    static constexpr std::chrono::milliseconds patience{ 1500 };

    /// `runtimeFolder` is where the system keeps such things of this user (XDG_RUNTIME_DIR; empty for none); without
    /// one that nobody else may enter, a folder of its own in the temporary directory takes its place. `session` tells
    /// desktops of one user apart, as by the display that they are on.
    SingleInstance(
        const Environment& environment, const std::filesystem::path& runtimeFolder, const QByteArray& session);

    /// Becomes the first one, or brings the first one to the front and hands it the desktop's permission to be there
    /// (XDG_ACTIVATION_TOKEN; may be empty). Waits for no longer than `patience`.
    Outcome claim(const QByteArray& activationToken = {});

    /// Where the first one listens; nothing where there is no place that is this user's alone.
    const std::optional<std::filesystem::path>& socket() const { return m_socket; }

Q_SIGNALS:
    /// Another one was started, and the windows of this one are to come to the front.
    void shownAgain(const QByteArray& activationToken);

private:
    enum class Lock { Ours, Theirs, Unknown };

    Lock lock();
    void listen();
    /// Whether the lock is still where others look for it.
    bool isLockInPlace() const;
    void putBack();
    void answer();

    std::optional<std::filesystem::path> m_socket;
    FileDescriptor m_lock;
    QLocalServer m_server;
    QFileSystemWatcher m_watcher; ///< Of the folder of both; asks for nothing while nothing happens there.
};

} // namespace Korvane
