// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Appearance.h"

#include <QApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Korvane"));
    QApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.korvane.Korvane"));
    Korvane::Appearance::applyFont();
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Korvane/UI/ContentView.qml")));
    if (engine.rootObjects().isEmpty())
        return 1;
    return QApplication::exec();
}
