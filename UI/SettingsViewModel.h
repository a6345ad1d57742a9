// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/UserDefaults.h"
#include "UI/FullDiskAccessViewModel.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>

#include <memory>
#include <string_view>

namespace Korvane {

/// The preferences that the user can change, bound to the store in both directions, and what the About tab tells.
///
/// Main thread.
class SettingsViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application")
    Q_PROPERTY(bool movesToTrash READ movesToTrash WRITE setMovesToTrash NOTIFY movesToTrashChanged FINAL)
    Q_PROPERTY(bool asksBeforeCleaning READ asksBeforeCleaning WRITE setAsksBeforeCleaning NOTIFY
            asksBeforeCleaningChanged FINAL)
    Q_PROPERTY(Korvane::FullDiskAccessViewModel* access READ access CONSTANT FINAL)
    /// "Version " and the version, or a dash for a program that has none.
    Q_PROPERTY(QString versionText READ versionText CONSTANT FINAL)

public:
    /// `access` must outlive the view model.
    SettingsViewModel(
        std::shared_ptr<UserDefaults> defaults, FullDiskAccessViewModel& access, QObject* parent = nullptr);

    bool movesToTrash() const;
    void setMovesToTrash(bool movesToTrash);
    bool asksBeforeCleaning() const;
    void setAsksBeforeCleaning(bool asksBeforeCleaning);
    FullDiskAccessViewModel* access() const { return &m_access; }
    QString versionText() const;

Q_SIGNALS:
    void movesToTrashChanged();
    void asksBeforeCleaningChanged();

private:
    void announce(std::string_view key);

    std::shared_ptr<UserDefaults> m_defaults;
    FullDiskAccessViewModel& m_access;
    std::unique_ptr<UserDefaults::Observation> m_observation;
};

} // namespace Korvane
