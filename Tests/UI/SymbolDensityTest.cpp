// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Symbols/SymbolImage.h"

#include <QGuiApplication>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <memory>

using namespace Korvane;

/// Symbols in a window of twice the density.
class SymbolDensityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSymbolIsDrawnInThePixelsOfItsWindow();
};

namespace {

QImage onWhite(const QImage& picture)
{
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).drawImage(0, 0, picture);
    return image;
}

/// The largest difference of a pixel's lightness between two pictures of one size.
int difference(const QImage& one, const QImage& other)
{
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            largest = std::max(largest, std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))));
    }
    return largest;
}

} // namespace

void SymbolDensityTest::aSymbolIsDrawnInThePixelsOfItsWindow()
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Korvane.UI\n"
                      "Window { width: 200; height: 100; visible: true; color: \"white\"\n"
                      "Symbol { name: \"gearshape\"; size: 20; color: \"black\" } }",
        QUrl());
    const std::unique_ptr<QObject> made(component.create());
    auto* window = qobject_cast<QQuickWindow*>(made.get());
    QVERIFY2(window, qPrintable(component.errorString()));
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QCOMPARE(window->effectiveDevicePixelRatio(), 2.0);
    const QImage drawn = window->grabWindow().copy(0, 0, 40, 40);
    const QImage sharp = onWhite(symbolImage(QStringLiteral("gearshape"), 40, Qt::black));
    const QImage enlarged = onWhite(symbolImage(QStringLiteral("gearshape"), 20, Qt::black))
                                .scaled(40, 40, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QVERIFY(difference(sharp, enlarged) > 40);
    const int off = difference(drawn, sharp);
    QVERIFY2(off <= 8, qPrintable(QString::number(off)));
}

int main(int argc, char* argv[])
{
    qputenv("QT_SCALE_FACTOR", "2");
    QGuiApplication application(argc, argv);
    SymbolDensityTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "SymbolDensityTest.moc"
