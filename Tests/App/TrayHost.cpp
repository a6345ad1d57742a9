// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/App/TrayHost.h"

#include <QGuiApplication>
#include <QStandardPaths>
#include <QSystemTrayIcon>
#include <QTest>

namespace Korvane {

QString TrayHost::start()
{
    if (QGuiApplication::platformName() != QStringLiteral("xcb"))
        return QStringLiteral("A tray needs an X display");
    for (const QString& tool : { QStringLiteral("trayer"), QStringLiteral("xdotool") }) {
        if (QStandardPaths::findExecutable(tool).isEmpty())
            return tool + QStringLiteral(" is not installed");
    }
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral("trayer"),
        { QStringLiteral("--edge"), QStringLiteral("top"), QStringLiteral("--align"), QStringLiteral("right"),
            QStringLiteral("--widthtype"), QStringLiteral("request"), QStringLiteral("--height"), QStringLiteral("28"),
            QStringLiteral("--SetDockType"), QStringLiteral("true"), QStringLiteral("--SetPartialStrut"),
            QStringLiteral("true") });
    if (!m_process.waitForStarted() || !QTest::qWaitFor(QSystemTrayIcon::isSystemTrayAvailable, 10'000))
        qFatal("trayer makes no tray");
    return {};
}

void TrayHost::crash()
{
    m_process.kill();
    m_process.waitForFinished();
}

void TrayHost::click(const QPoint& place, int button)
{
    act({ QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()), QStringLiteral("click"),
        QString::number(button) });
}

void TrayHost::doubleClick(const QPoint& place)
{
    act({ QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()), QStringLiteral("click"),
        QStringLiteral("--repeat"), QStringLiteral("2"), QStringLiteral("--delay"), QStringLiteral("50"),
        QStringLiteral("1") });
}

void TrayHost::press(const QString& key) { act({ QStringLiteral("key"), key }); }

void TrayHost::act(const QStringList& arguments)
{
    if (QProcess::execute(QStringLiteral("xdotool"), arguments) != 0)
        qFatal("xdotool fails");
}

} // namespace Korvane
