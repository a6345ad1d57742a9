// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

#include <memory>
#include <optional>

namespace Korvane {

class DesktopPreferences;

/// How the desktop asks applications to look: light or dark, with or without motion.
///
/// Main thread. Follows the desktop while the application runs.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY changed FINAL)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed FINAL)
    Q_PROPERTY(bool highContrast READ highContrast NOTIFY changed FINAL)
    /// The family that texts are set in.
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT FINAL)

public:
    explicit Appearance(QObject* parent = nullptr);
    ~Appearance() override;

    /// What the desktop prefers, or, where it says nothing, whether windows are darker than their text.
    bool dark() const;
    bool reducedMotion() const;
    bool highContrast() const;
    QString fontFamily() const;

    /// Each fixes one answer whatever the desktop says, for tests and pictures; nothing follows the desktop again.
    void setDark(std::optional<bool> dark);
    void setReducedMotion(std::optional<bool> reducedMotion);
    void setHighContrast(std::optional<bool> highContrast);

    /// Gives the application the font that the screens are drawn for, where the platform's own is not it.
    static void applyFont();

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<DesktopPreferences> m_desktop;
    std::optional<bool> m_dark;
    std::optional<bool> m_reducedMotion;
    std::optional<bool> m_highContrast;
};

} // namespace Korvane
