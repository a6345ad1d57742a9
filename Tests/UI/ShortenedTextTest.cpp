// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/ShortenedText.h"

#include <QtTest>

#include <string>

using namespace Korvane;

/// Texts of any length, cut to be laid out.
class ShortenedTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavesWhatIsShortEnough();
    void cutsAtTheEnd();
    void cutsInTheMiddle();
    void cutsBetweenCharacters();
    void cutsBytesAsItCutsTheirText();
};

namespace {

const QChar dots(0x2026);

} // namespace

void ShortenedTextTest::leavesWhatIsShortEnough()
{
    for (const Cut cut : { Cut::End, Cut::Middle }) {
        QCOMPARE(shortened(QString(), 4, cut), QString());
        QCOMPARE(shortened(QStringLiteral("abcd"), 4, cut), QStringLiteral("abcd"));
    }
}

void ShortenedTextTest::cutsAtTheEnd()
{
    QCOMPARE(shortened(QStringLiteral("abcdef"), 4, Cut::End), QStringLiteral("abc") + dots);
}

void ShortenedTextTest::cutsInTheMiddle()
{
    QCOMPARE(shortened(QStringLiteral("abcdefgh"), 5, Cut::Middle), QStringLiteral("ab") + dots + QStringLiteral("gh"));
    QCOMPARE(
        shortened(QStringLiteral("abcdefgh"), 6, Cut::Middle), QStringLiteral("abc") + dots + QStringLiteral("gh"));
}

void ShortenedTextTest::cutsBetweenCharacters()
{
    // A face is two code units; a letter and its accent are one character.
    const QString faces = QString::fromUtf8("\xF0\x9F\x98\x80\xF0\x9F\x98\x81\xF0\x9F\x98\x82");
    QCOMPARE(shortened(faces, 4, Cut::End), faces.left(2) + dots);
    QCOMPARE(shortened(faces, 5, Cut::Middle), faces.left(2) + dots + faces.right(2));
    const QString accents = QString::fromUtf8("e\xCC\x81"
                                              "e\xCC\x81"
                                              "e\xCC\x81");
    QCOMPARE(shortened(accents, 4, Cut::End), accents.left(2) + dots);
    QCOMPARE(shortened(accents, 4, Cut::Middle), accents.left(2) + dots);
}

void ShortenedTextTest::cutsBytesAsItCutsTheirText()
{
    const std::string faces = "\xF0\x9F\x98\x80";
    for (const std::string& piece : { std::string("x"), std::string("\xC3\xA9"), faces, std::string("\xFF") }) {
        for (const std::size_t count : { 1U, 40U, 50U, 400U, 100'000U }) {
            std::string bytes;
            for (std::size_t i = 0; i < count; ++i)
                bytes += piece;
            for (const Cut cut : { Cut::End, Cut::Middle }) {
                const QString whole = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
                QCOMPARE(shortened(bytes, 41, cut), shortened(whole, 41, cut));
            }
        }
    }
}

QTEST_GUILESS_MAIN(ShortenedTextTest)
#include "ShortenedTextTest.moc"
