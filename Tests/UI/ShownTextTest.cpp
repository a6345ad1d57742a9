// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/ShownText.h"

#include <QGlyphRun>
#include <QTest>
#include <QTextLayout>

#include <algorithm>

using namespace Korvane;

namespace {

/// The characters of a text in the order in which they are drawn, from left to right.
QString drawn(const QString& text)
{
    QTextLayout layout(text, QFont());
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    std::vector<std::pair<double, QChar>> places;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] != QChar(0x2068) && text[i] != QChar(0x2069))
            places.emplace_back(line.glyphRuns(i, 1).constFirst().positions().constFirst().x(), text[i]);
    }
    std::stable_sort(places.begin(), places.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    QString order;
    for (const auto& place : places)
        order += place.second;
    return order;
}

} // namespace

/// Names written from right to left among our own texts. In the expected orders they stand as they are drawn.
class ShownTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textsFromLeftToRightStayAsTheyAre();
    void aNameTurnsNothingAroundIt_data();
    void aNameTurnsNothingAroundIt();
    void aSentenceThatWasFilledInStaysOne_data();
    void aSentenceThatWasFilledInStaysOne();
    void lettersOutsideTheBasicPlaneAndTheirMarksStayTogether();
};

void ShownTextTest::textsFromLeftToRightStayAsTheyAre()
{
    for (const char* text : { "", "/", "~/Pictures/2024 Brest", "夏の海.mov — 3 copies, 12.4 MB each", "🎉 Party.mov",
             "Ελλάδα/ηλιοβασίλεμα.jpg", "a [U+202E]b" })
        QCOMPARE(ShownText::isolated(QString::fromUtf8(text)), QString::fromUtf8(text));
}

void ShownTextTest::aNameTurnsNothingAroundIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("order");
    const auto row = [](const char* name, const char* text, const char* order) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(order);
    };
    // Written with the letters alef, bet, gimel and dalet: \u05D0 to \u05D3.
    row("original", "\u05D0\u05D1.mov (original)", "\u05D1\u05D0.mov (original)");
    row("label", "\u05D0\u05D1 \u2014 3 copies, 5 MB each", "\u05D1\u05D0 \u2014 3 copies, 5 MB each");
    row("path", "~/\u05D0\u05D1/\u05D2\u05D3/7", "~/\u05D1\u05D0/\u05D3\u05D2/7");
    row("name after ours", "IMG \u05D0\u05D1.jpg", "IMG \u05D1\u05D0.jpg");
    row("two words", "\u05D0\u05D1 \u05D2\u05D3.jpg", "\u05D3\u05D2 \u05D1\u05D0.jpg");
    row("brackets at the end", "\u05D0 (\u05D1).pdf", ")\u05D1( \u05D0.pdf");
    row("brackets at the beginning", "(\u05D0) \u05D1.pdf", "\u05D1 )\u05D0(.pdf");
    row("brackets around all", "(\u05D0\u05D1) 2.pdf", "(\u05D1\u05D0) 2.pdf");
    row("quoted", "\u201C/a/\u05D0\u05D1\u201D is a link.", "\u201C/a/\u05D1\u05D0\u201D is a link.");
}

void ShownTextTest::aNameTurnsNothingAroundIt()
{
    QFETCH(QString, text);
    QFETCH(QString, order);
    QCOMPARE(drawn(ShownText::isolated(text)), order);
}

void ShownTextTest::aSentenceThatWasFilledInStaysOne_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("order");
    const auto row = [](const char* name, const char* text, const char* order) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(order);
    };
    row("size within", "\u05D0 \u206826.1 GB\u2069 \u05D1", "\u05D1 26.1 GB \u05D0");
    row("size first", "\u206826.1 GB\u2069 \u05D0\u05D1", "\u05D1\u05D0 26.1 GB");
    row("path", "\u05D0 \u2068/a/b c\u2069 \u05D1", "\u05D1 /a/b c \u05D0");
}

void ShownTextTest::aSentenceThatWasFilledInStaysOne()
{
    QFETCH(QString, text);
    QFETCH(QString, order);
    QCOMPARE(drawn(ShownText::isolated(text)), order);
    // Line by line.
    QCOMPARE(ShownText::isolated("/\u05D0\n" + text), "/\u2068\u05D0\u2069\n" + text);
}

void ShownTextTest::lettersOutsideTheBasicPlaneAndTheirMarksStayTogether()
{
    // Adlam, and alef with a vowel sign.
    for (const char* letters : { "\U0001E900\U0001E901", "\u05D0\u05B8" }) {
        const QString name = QString::fromUtf8(letters);
        QCOMPARE(ShownText::isolated("a" + name + ".b"), "a" + QString(QChar(0x2068)) + name + QChar(0x2069) + ".b");
    }
}

QTEST_MAIN(ShownTextTest)
#include "ShownTextTest.moc"
