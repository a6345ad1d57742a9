// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Modules.h"
#include "UI/Symbols/SymbolImage.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Korvane;

class SymbolTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyNameThatScreensUseIsDrawn();
    void everyModuleHasASymbol();
    void theFamilyIsComplete();
    void allAreDrawnOnOneGridWithOneStroke();
    void allAreSharpAtEveryDensity();
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

void SymbolTest::theFamilyIsComplete()
{
    for (const char* name : { "arrow.clockwise", "cable.connector", "checkmark.circle.fill", "doc.on.doc.fill",
             "exclamationmark.shield", "exclamationmark.triangle.fill", "externaldrive.badge.timemachine",
             "externaldrive.fill.badge.exclamationmark", "folder.fill", "gearshape", "info.circle",
             "internaldrive.fill", "iphone.gen3", "iphone.slash", "lock.shield.fill", "macwindow", "magnifyingglass",
             "magnifyingglass.circle", "memorychip", "network", "photo.fill", "sparkles", "speedometer", "trash",
             "trash.circle.fill", "video.fill", "xmark.bin.fill" })
        QVERIFY2(symbolNames().contains(QLatin1String(name)), name);
}

void SymbolTest::allAreDrawnOnOneGridWithOneStroke()
{
    const QLatin1String stroke("1.75");
    for (const QString& name : symbolNames()) {
        QFile file(QStringLiteral(":/qt/qml/Korvane/UI/Symbols/%1.svg").arg(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader drawing(&file);
        while (!drawing.atEnd()) {
            if (drawing.readNext() != QXmlStreamReader::StartElement)
                continue;
            const QXmlStreamAttributes look = drawing.attributes();
            if (drawing.name() == QLatin1String("svg"))
                QCOMPARE(look.value("viewBox").toString(), QStringLiteral("0 0 24 24"));
            // Black is the tint, white a hole.
            for (const char* paint : { "fill", "stroke" })
                QVERIFY2(QStringList({ "", "none", "#000", "#fff" }).contains(look.value(paint).toString()),
                    qPrintable(name));
            if (!look.hasAttribute("stroke"))
                continue;
            QCOMPARE(look.value("stroke-linecap").toString(), QStringLiteral("round"));
            QCOMPARE(look.value("stroke-linejoin").toString(), QStringLiteral("round"));
            // Or the gap around a line that crosses others.
            if (look.value("stroke-width") != stroke)
                QVERIFY2(look.value("stroke") == QLatin1String("#fff") && look.value("stroke-width").toDouble() > 4,
                    qPrintable(name));
        }
        QVERIFY2(!drawing.hasError(), qPrintable(name + drawing.errorString()));
    }
}

// Each density has a picture of its own, which no other is enlarged from, with ink as dark as the colour.
void SymbolTest::allAreSharpAtEveryDensity()
{
    for (const QString& name : symbolNames()) {
        for (const int pixels : { 16, 32 }) {
            const QImage image = symbolImage(name, pixels, Qt::black);
            QCOMPARE(image.width(), pixels);
            int strongest = 0;
            for (int y = 0; y < pixels; ++y) {
                for (int x = 0; x < pixels; ++x)
                    strongest = std::max(strongest, qAlpha(image.pixel(x, y)));
            }
            QVERIFY2(strongest >= (pixels == 16 ? 140 : 240),
                qPrintable(QStringLiteral("%1 at %2: %3").arg(name).arg(pixels).arg(strongest)));
        }
        const QImage enlarged
            = symbolImage(name, 16, Qt::black).scaled(32, 32, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QVERIFY2(symbolImage(name, 32, Qt::black) != enlarged.convertToFormat(QImage::Format_ARGB32_Premultiplied),
            qPrintable(name));
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
