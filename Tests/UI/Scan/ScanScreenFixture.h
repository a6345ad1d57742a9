// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "App/KorvaneApp.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestHost.h"
#include "Tests/Support/TestTrash.h"
#include "Tests/UI/Support/QmlWarnings.h"
#include "Tests/UI/Support/Screen.h"

#include <QObject>
#include <QQuickWindow>

#include <filesystem>
#include <memory>

namespace Korvane {

/// Whether a row is ticked; None when it is not to be seen.
enum class Tick { None, Off, On };

inline QString utf8(const char* text) { return QString::fromUtf8(text); }

/// The real window on a real home of its own, with a sentinel in it. Every warning fails the test that caused it.
class ScanScreenFixture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    QQuickWindow* window() const { return m_app->mainWindow(); }
    QQuickItem* named(const char* name) const { return control(window(), utf8(name)); }
    /// The check box of a found item, as tall as its row; null when it cannot be seen.
    QQuickItem* row(const char* name) const;
    /// The check box in the heading of a category; null when it cannot be seen.
    QQuickItem* heading(const char* category) const;
    Tick tick(const char* name) const;
    bool shows(const QString& text) const { return visibleTexts(window()).contains(text); }
    std::filesystem::path home() const { return m_test->host.environment.home; }
    std::filesystem::path trashed(const char* path) const { return testTrash(m_test->host.environment) / path; }

    /// Each presses once the control has come to rest and is enabled.
    void press(const char* name) const;
    void pressRow(const char* name) const;
    void pressHeading(const char* category) const;
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Presses a key in a window, the main one if there is no other, until it has repeated itself four times.
    void hold(Qt::Key key, QWindow* window = nullptr) const;
    /// Presses Tab until the control has the focus.
    void tabTo(const char* name) const;

    /// Begins anew on the host as it is now.
    void startApplication();
    void makeCaches() const;
    /// Opens System Junk and scans until something is found.
    void scan() const;

    std::unique_ptr<QmlWarnings> m_warnings;
    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<TestHost> m_test;
    std::unique_ptr<Sentinel> m_sentinel;
    std::unique_ptr<KorvaneApp> m_app;
};

} // namespace Korvane
