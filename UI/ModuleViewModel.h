// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Modules.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace Korvane {

/// One module as rows and cards show it. Never changes. Main thread.
class ModuleViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application, one for each module")
    /// The raw value of the module: "systemJunk".
    Q_PROPERTY(QString identity READ identity CONSTANT FINAL)
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT FINAL)
    Q_PROPERTY(QString symbol READ symbol CONSTANT FINAL)
    Q_PROPERTY(Accent accent READ accent CONSTANT FINAL)
    /// Whether the module follows the generic pattern of scan, select and clean.
    Q_PROPERTY(bool generic READ isGeneric CONSTANT FINAL)

public:
    /// The named colours that modules are shown in; Theme gives them their values.
    enum class Accent { Cyan, Orange, Red, Green, Purple, Blue };
    Q_ENUM(Accent)

    explicit ModuleViewModel(CleanerModule module, QObject* parent = nullptr);

    CleanerModule module() const { return m_module; }

    QString identity() const;
    /// In the user's language.
    QString title() const;
    /// In the user's language.
    QString subtitle() const;
    QString symbol() const;
    Accent accent() const;
    bool isGeneric() const;

private:
    CleanerModule m_module;
};

} // namespace Korvane
