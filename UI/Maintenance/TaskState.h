// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <utility>

namespace Korvane {

/// How the last run of a maintenance task stands. A plain value.
struct TaskState {
    enum class Kind { Running, Done, Failed };

    Kind kind = Kind::Running;
    QString message; ///< Of a failure, as it was told; it may be empty. Otherwise empty.

    static TaskState running() { return { Kind::Running, {} }; }
    static TaskState done() { return { Kind::Done, {} }; }
    static TaskState failed(QString message) { return { Kind::Failed, std::move(message) }; }

    bool operator==(const TaskState&) const = default;
};

} // namespace Korvane
