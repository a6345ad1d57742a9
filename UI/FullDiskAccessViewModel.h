// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Host.h"

#include <QObject>
#include <QQmlEngine>

namespace Korvane {

/// Whether the application may read the protected folders, for the banner and the settings.
///
/// Main thread. Probes when made, and again whenever the application becomes active or inactive.
class FullDiskAccessViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application")
    Q_PROPERTY(bool granted READ isGranted NOTIFY grantedChanged FINAL)

public:
    explicit FullDiskAccessViewModel(Host host, QObject* parent = nullptr);

    /// What the last probe found.
    bool isGranted() const { return m_granted; }

    /// Probes again.
    Q_INVOKABLE void refresh();
    /// Opens the system's settings where access is granted.
    Q_INVOKABLE void openSettings() const;

Q_SIGNALS:
    void grantedChanged();

private:
    Host m_host;
    bool m_granted;
};

} // namespace Korvane
