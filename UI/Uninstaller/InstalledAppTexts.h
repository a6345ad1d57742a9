// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Uninstalling/InstalledApp.h"

#include <QCoreApplication>
#include <QString>
#include <QtQmlIntegration>

namespace Korvane {

/// What the screen says of one application, and what the user is asked to agree to before it goes.
class InstalledAppTexts {
    Q_GADGET
    QML_VALUE_TYPE(installedAppTexts)
    Q_DECLARE_TR_FUNCTIONS(Korvane::InstalledAppTexts)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(QString identifier MEMBER identifier)
    Q_PROPERTY(QString sizeText MEMBER sizeText)
    Q_PROPERTY(QString totalText MEMBER totalText)
    Q_PROPERTY(QString iconSource MEMBER iconSource)
    Q_PROPERTY(QString leftoversTitle MEMBER leftoversTitle)
    Q_PROPERTY(QString withoutLeftovers MEMBER withoutLeftovers)
    Q_PROPERTY(QString note MEMBER note)
    Q_PROPERTY(QString question MEMBER question)
    Q_PROPERTY(QString consequence MEMBER consequence)
    Q_PROPERTY(QString consent MEMBER consent)

public:
    QString name;
    QString path; ///< Of the application itself.
    QString identifier; ///< As the application states it; empty when it states none.
    QString sizeText; ///< Of the application itself.
    QString totalText; ///< Of the application with its leftovers.
    QString iconSource; ///< What an Image is to show.
    QString leftoversTitle; ///< Above the leftovers.
    QString withoutLeftovers; ///< Why there are no leftovers; empty when there are some.
    QString note; ///< Beside the button.
    QString question; ///< The title of the confirmation.
    QString consequence; ///< What will happen.
    QString consent; ///< What the confirming button says.

    /// In the user's locale. A Flatpak is removed by its own tool, and its texts say so.
    static InstalledAppTexts of(const InstalledApp& app);
};

} // namespace Korvane
