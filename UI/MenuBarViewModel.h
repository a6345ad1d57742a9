// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Host.h"
#include "Platform/UserDefaults.h"
#include "UI/Navigation.h"
#include "UI/WaitingThreads.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QTimer>

#include <memory>

namespace Korvane {

/// What the panel at the icon in the menu bar tells and does, and the native menu in its place: when was cleaned last,
/// and the quick ways in and out.
///
/// Main thread. Its end ends what waits for an administrator's password.
class MenuBarViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application")
    /// Whether a cleanup has been recorded; without one there is nothing to tell.
    Q_PROPERTY(bool hasLastCleanup READ hasLastCleanup NOTIFY lastCleanupChanged FINAL)
    /// "Last cleanup: " and how much it freed.
    Q_PROPERTY(QString lastCleanup READ lastCleanup NOTIFY lastCleanupChanged FINAL)
    /// How long ago that was, in words; right when it was last announced, which happens once a minute while it is
    /// shown.
    Q_PROPERTY(QString lastCleanupMoment READ lastCleanupMoment NOTIFY lastCleanupChanged FINAL)
    /// Whether memory is being freed, so that it is not asked for twice.
    Q_PROPERTY(bool freeingRam READ isFreeingRam NOTIFY freeingRamChanged FINAL)

public:
    /// `navigation` must outlive the view model.
    MenuBarViewModel(Host host, Navigation& navigation, QObject* parent = nullptr);

    bool hasLastCleanup() const;
    QString lastCleanup() const;
    QString lastCleanupMoment() const;
    bool isFreeingRam() const { return m_isFreeingRam; }

    /// The panel is shown, or is not any more. Words are kept true for as long as they are seen.
    void setShown(bool isShown);
    bool isShown() const { return m_minutes.isActive(); }

    /// Opens the main window.
    Q_INVOKABLE void open();
    /// Opens the main window and asks for a scan of the system junk.
    Q_INVOKABLE void scanSystemJunk();
    /// Has memory freed, which may ask for a password; what comes of it is not told. Nothing while that is under way.
    Q_INVOKABLE void freeUpRam();
    /// Ends the application.
    Q_INVOKABLE void quit();

Q_SIGNALS:
    void lastCleanupChanged();
    void freeingRamChanged();
    /// The main window is to be opened, in front of others.
    void openRequested();
    void quitRequested();

private:
    double lastCleanedDate() const;
    void setFreeingRam(bool isFreeing);

    const Host m_host;
    Navigation& m_navigation;
    bool m_isFreeingRam = false;
    QTimer m_minutes{ this }; ///< Runs while shown.
    WaitingThreads m_threads;
    std::unique_ptr<UserDefaults::Observation> m_observation;
};

} // namespace Korvane
