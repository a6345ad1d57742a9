// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/UI/Scan/HeldScan.h"
#include "Tests/UI/Scan/ScanScreenFixture.h"

#include <atomic>
#include <string>

namespace Korvane {

/// The whole application on a home of its own, gone through by the keyboard alone.
///
/// After every key the keyboard must come to rest on something that is seen whole, shows that it has the keyboard, and
/// has a name; and nothing may ever come from a pointer. What a tour does after a failure does nothing.
class TourFixture : public ScanScreenFixture {
    Q_OBJECT

public:
    TourFixture();
    ~TourFixture() override;

    /// Counts what comes from a pointer.
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void cleanupTestCase();

protected:
    /// The window that has the keyboard; null when none has.
    static QQuickWindow* front();
    /// The name of what has the keyboard.
    static QString focused();

    void hit(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Presses the keys of the letters of a word.
    void type(const char* word) const;
    /// Presses a key until the keyboard is on what has this name, at most so many times.
    void goTo(const char* name, Qt::Key key = Qt::Key_Tab, int most = 8) const;
    /// Waits until the keyboard is on what has this name, by itself.
    void arriveAt(const char* name) const;
    /// From anywhere in the main window: chooses a row of the sidebar, and goes on to its screen.
    void open(const char* row) const;
    /// Waits until a question is open that can be answered so, and the keyboard is on `first`.
    void beAsked(const char* answer, const char* first) const;
    /// Waits until no question with this answer is open any more.
    void beAskedNoMore(const char* answer) const;

    /// From the next start of the application on, scans wait while they are held.
    void makeScansHoldable();
    void holdScans() { m_held = true; }
    void letScansGo() { m_held = false; }

    /// Whether this lies in the Trash with what puts it back, and no longer where it was.
    bool wasTrashed(const std::filesystem::path& original) const;

private:
    std::atomic<bool> m_held = false;
    int m_pointerEvents = 0;
};

} // namespace Korvane
