// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Appearance.h"

#include "UI/DesktopPreferences.h"

#include <QEvent>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPalette>

namespace Korvane {

Appearance::Appearance(QObject* parent)
    : QObject(parent)
    , m_desktop(DesktopPreferences::make())
{
    connect(m_desktop.get(), &DesktopPreferences::changed, this, &Appearance::changed);
    qApp->installEventFilter(this);
}

Appearance::~Appearance() = default;

bool Appearance::dark() const
{
    if (m_dark)
        return *m_dark;
    if (const std::optional<bool> preferred = m_desktop->dark())
        return *preferred;
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightnessF() < palette.color(QPalette::WindowText).lightnessF();
}

bool Appearance::reducedMotion() const { return m_reducedMotion.value_or(m_desktop->reducedMotion()); }

bool Appearance::highContrast() const { return m_highContrast.value_or(m_desktop->highContrast()); }

QString Appearance::fontFamily() const { return QGuiApplication::font().family(); }

void Appearance::setDark(std::optional<bool> dark)
{
    m_dark = dark;
    Q_EMIT changed();
}

void Appearance::setReducedMotion(std::optional<bool> reducedMotion)
{
    m_reducedMotion = reducedMotion;
    Q_EMIT changed();
}

void Appearance::setHighContrast(std::optional<bool> highContrast)
{
    m_highContrast = highContrast;
    Q_EMIT changed();
}

bool Appearance::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange)
        Q_EMIT changed();
    return QObject::eventFilter(watched, event);
}

void Appearance::applyFont()
{
    const QString preferred = DesktopPreferences::fontFamily();
    if (preferred.isEmpty())
        return;
    QFont font = QGuiApplication::font();
    if (QFontDatabase::hasFamily(preferred))
        font.setFamilies({ preferred, font.family() });
    font.setHintingPreference(QFont::PreferVerticalHinting);
    QGuiApplication::setFont(font);
}

} // namespace Korvane
