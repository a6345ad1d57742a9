// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace Korvane {

/// What the desktop's own settings say about the look of applications. Main thread.
class DesktopPreferences : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether the dark look is preferred; nothing when the desktop does not say.
    virtual std::optional<bool> dark() const = 0;
    virtual bool reducedMotion() const = 0;
    virtual bool highContrast() const = 0;

    /// The settings of this desktop; answers may arrive later, with `changed`.
    static std::unique_ptr<DesktopPreferences> make();

    /// The font family that the screens are drawn for; empty where the platform's own font is.
    static QString fontFamily();

Q_SIGNALS:
    void changed();
};

} // namespace Korvane
