// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/TrayIcon.h"

#include "Core/Scanning/FormattedBytes.h"
#include "UI/PreferenceKeys.h"
#include "UI/Symbols/SymbolImage.h"

#include <QAction>
#include <QColor>
#include <QIcon>
#include <QPixmap>

#include <utility>

namespace Korvane {

namespace {

QIcon icon()
{
    // Seen on light and on dark panels alike; where the platform tints such icons itself, it may.
    const QColor color(0x2f, 0x95, 0xff);
    QIcon icon;
    for (const int pixels : { 16, 22, 24, 32, 44, 48, 64 })
        icon.addPixmap(QPixmap::fromImage(symbolImage(QStringLiteral("sparkles"), pixels, color)));
    icon.setIsMask(true);
    return icon;
}

} // namespace

TrayIcon::TrayIcon(std::shared_ptr<UserDefaults> defaults)
    : m_defaults(std::move(defaults))
    , m_lastCleanup(m_menu.addAction(QString()))
    , m_lastCleanupSeparator(m_menu.addSeparator())
    , m_observation(m_defaults->observe([this](std::string_view) { updateLastCleanup(); }))
{
    m_lastCleanup->setEnabled(false);
    connect(m_menu.addAction(tr("Open Korvane")), &QAction::triggered, this, &TrayIcon::openRequested);
    connect(m_menu.addAction(tr("Scan System Junk")), &QAction::triggered, this, &TrayIcon::scanRequested);
    m_menu.addSeparator();
    connect(m_menu.addAction(tr("Quit Korvane")), &QAction::triggered, this, &TrayIcon::quitRequested);
    updateLastCleanup();
    m_icon.setToolTip(tr("Korvane"));
    m_icon.setContextMenu(&m_menu);
    connect(&m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::DoubleClick)
            Q_EMIT openRequested();
    });
}

void TrayIcon::show()
{
    m_icon.setIcon(icon());
    m_icon.show();
}

bool TrayIcon::isReachable() const { return m_icon.isVisible() && QSystemTrayIcon::isSystemTrayAvailable(); }

void TrayIcon::updateLastCleanup()
{
    const bool recorded = m_defaults->doubleForKey(PreferenceKeys::lastCleanedDate, 0.0) > 0.0;
    const std::int64_t bytes = m_defaults->integerForKey(PreferenceKeys::lastCleanedBytes, 0);
    m_lastCleanup->setText(tr("Last cleanup: %1").arg(QString::fromStdString(formattedBytes(bytes))));
    m_lastCleanup->setVisible(recorded);
    m_lastCleanupSeparator->setVisible(recorded);
}

} // namespace Korvane
