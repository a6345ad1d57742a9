// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Modules.h"
#include "UI/Symbols/SymbolImage.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Korvane;

class SymbolTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyNameThatScreensUseIsDrawn();
    void everyModuleHasASymbol();
    void everySymbolHasInkAndKeepsItsMargin();
    void takesTheColour();
    void whiteBecomesAHole();
    void aMissingNameDrawsNothing();
};

void SymbolTest::everyNameThatScreensUseIsDrawn()
{
    static const QRegularExpression property(QStringLiteral(R"re(\b(?:symbol|name):\s*(.*))re"));
    static const QRegularExpression literal(QStringLiteral(R"re("([a-z0-9]+(?:\.[a-z0-9]+)*)")re"));
    const QStringList names = symbolNames();
    QSet<QString> used;
    QDirIterator files(
        QStringLiteral(":/qt/qml/Korvane/UI"), { QStringLiteral("*.qml") }, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (const auto& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
            const QRegularExpressionMatch match = property.match(line);
            auto literals = literal.globalMatch(match.captured(1));
            while (literals.hasNext())
                used.insert(literals.next().captured(1));
        }
    }
    QVERIFY(used.size() >= 10);
    for (const QString& name : used)
        QVERIFY2(names.contains(name), qPrintable(name));
}

void SymbolTest::everyModuleHasASymbol()
{
    for (const CleanerModule module : allCleanerModules) {
        const std::string_view name = systemImage(module);
        QVERIFY(symbolNames().contains(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))));
    }
}

void SymbolTest::everySymbolHasInkAndKeepsItsMargin()
{
    for (const QString& name : symbolNames()) {
        const QImage image = symbolImage(name, 96, Qt::black);
        QVERIFY2(image.width() == 96 && image.height() == 96, qPrintable(name));
        int inked = 0;
        for (int y = 0; y < 96; ++y) {
            for (int x = 0; x < 96; ++x) {
                const bool ink = qAlpha(image.pixel(x, y)) > 0;
                inked += ink ? 1 : 0;
                const bool margin = x < 2 || y < 2 || x >= 94 || y >= 94;
                QVERIFY2(!(ink && margin), qPrintable(name));
            }
        }
        QVERIFY2(inked > 300, qPrintable(name));
    }
}

void SymbolTest::takesTheColour()
{
    const QColor color(10, 200, 60);
    const QImage image = symbolImage(QStringLiteral("folder.fill"), 48, color);
    QCOMPARE(image.pixelColor(24, 30), color);
    const QImage faint = symbolImage(QStringLiteral("folder.fill"), 48, QColor(10, 200, 60, 128));
    QCOMPARE(faint.pixelColor(24, 30).alpha(), 128);
}

void SymbolTest::whiteBecomesAHole()
{
    const QImage image = symbolImage(QStringLiteral("checkmark.circle.fill"), 240, Qt::red);
    QCOMPARE(image.pixelColor(107, 153).alpha(), 0);
    QCOMPARE(image.pixelColor(120, 40).alpha(), 255);
}

void SymbolTest::aMissingNameDrawsNothing()
{
    QVERIFY(symbolImage(QStringLiteral("no.such.symbol"), 16, Qt::black).isNull());
    QVERIFY(symbolImage(QString(), 16, Qt::black).isNull());
    QVERIFY(symbolImage(QStringLiteral("trash"), 0, Qt::black).isNull());
}

QTEST_MAIN(SymbolTest)
#include "SymbolTest.moc"
