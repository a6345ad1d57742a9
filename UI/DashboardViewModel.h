// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/VolumeCapacity.h"
#include "UI/ModuleViewModel.h"
#include "UI/Navigation.h"

#include <QObject>
#include <QQmlEngine>
#include <QQmlListProperty>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace Korvane {

/// The home screen: how full the startup disk is, and the way to every module.
///
/// Main thread; the disk is measured on the `backgroundThreads`.
class DashboardViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application")
    /// Between 0 and 1.
    Q_PROPERTY(double usedFraction READ usedFraction NOTIFY measured FINAL)
    /// Whether more than 90 percent are used.
    Q_PROPERTY(bool nearlyFull READ isNearlyFull NOTIFY measured FINAL)
    /// "<free size> free of <total size>".
    Q_PROPERTY(QString capacityText READ capacityText NOTIFY measured FINAL)
    /// The two parts of the bar, formatted.
    Q_PROPERTY(QString usedText READ usedText NOTIFY measured FINAL)
    Q_PROPERTY(QString freeText READ freeText NOTIFY measured FINAL)
    Q_PROPERTY(QQmlListProperty<Korvane::ModuleViewModel> modules READ modules CONSTANT FINAL)

public:
    /// Answers how large the startup disk is; called on a worker's thread.
    using Measure = std::function<std::optional<VolumeCapacity>()>;

    /// The modules, in the order in which they are shown, and the navigation must outlive the view model.
    DashboardViewModel(
        QList<ModuleViewModel*> modules, Navigation& navigation, Measure measure, QObject* parent = nullptr);

    /// Both 0 until measured, and when the platform does not tell.
    std::int64_t totalBytes() const { return m_totalBytes; }
    std::int64_t freeBytes() const { return m_freeBytes; }
    /// Never negative: purgeable space can make more free than there is.
    std::int64_t usedBytes() const;

    double usedFraction() const;
    bool isNearlyFull() const;
    QString capacityText() const;
    QString usedText() const;
    QString freeText() const;
    QQmlListProperty<ModuleViewModel> modules();

    /// Measures the startup disk in the background.
    Q_INVOKABLE void measure();
    /// Opens System Junk and starts its scan.
    Q_INVOKABLE void smartScan();
    /// Opens the module's screen.
    Q_INVOKABLE void open(Korvane::ModuleViewModel* module);

Q_SIGNALS:
    void measured();

private:
    QList<ModuleViewModel*> m_modules;
    Navigation& m_navigation;
    Measure m_measure;
    std::uint64_t m_measurement = 0; ///< The number of the last one that was begun.
    std::int64_t m_totalBytes = 0;
    std::int64_t m_freeBytes = 0;
};

} // namespace Korvane
