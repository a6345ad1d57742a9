// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

namespace Korvane {

/// Collects every warning that is logged while it lives, those of QML too. One at a time; any thread may log.
class QmlWarnings {
public:
    QmlWarnings();
    ~QmlWarnings();
    QmlWarnings(const QmlWarnings&) = delete;
    QmlWarnings& operator=(const QmlWarnings&) = delete;

    QStringList texts() const;
};

} // namespace Korvane
