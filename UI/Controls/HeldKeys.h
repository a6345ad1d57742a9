// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQuickItem>

namespace Korvane {

/// Makes a key that is held down one press, in the whole window that this is put into: what Return, Enter, Space and
/// Delete repeat reaches nothing there. Into a text, Space and Delete repeat. Main thread.
class HeldKeys : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit HeldKeys(QQuickItem* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isWriting() const;
};

} // namespace Korvane
