// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanShares.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QTest>

#include <cmath>

using namespace Korvane;

namespace {

/// Findings with one item for each of these sizes, each in a category of its own: "0", "1" and so on.
ScanFindings findingsOf(const std::vector<std::int64_t>& sizes)
{
    std::vector<ScanItem> items;
    for (std::size_t index = 0; index < sizes.size(); ++index)
        items.emplace_back("/x", std::nullopt, std::to_string(index), sizes[index], true);
    return ScanFindings(std::move(items));
}

QStringList texts(const ScanShares& shares, ScanShares::Role role)
{
    QStringList texts;
    for (int row = 0; row < shares.rowCount(); ++row)
        texts << shares.index(row).data(role).toString();
    return texts;
}

double share(const ScanShares& shares, int row) { return shares.index(row).data(ScanShares::ShareRole).toDouble(); }

/// Each is seen, and all together they fill the bar.
void verifyFilled(const ScanShares& shares)
{
    double sum = 0;
    for (int row = 0; row < shares.rowCount(); ++row) {
        QVERIFY(share(shares, row) >= ScanShares::leastShare);
        sum += share(shares, row);
    }
    QVERIFY(std::abs(sum - 1) < 1e-9);
}

} // namespace

class ScanSharesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingHasNoShares();
    void oneCategoryHasItAllAndTellsNothing();
    void addsUpItemsOfACategoryWhereverTheyStand();
    void theSmallestIsStillSeen();
    void asManyAsThereAreColoursHaveOneEach();
    void ofMoreTheLargestAreNamedAndTheOthersOneTogether();
    void equalSharesStayInTheOrderOfTheList();
    void thousandsOfCategoriesAreQuicklyShared();
};

void ScanSharesTest::nothingHasNoShares()
{
    ScanShares shares;
    QAbstractItemModelTester tester(&shares, QAbstractItemModelTester::FailureReportingMode::QtTest);
    shares.setFindings(ScanFindings());
    QCOMPARE(shares.rowCount(), 0);
    QVERIFY(!shares.isTelling());
    QCOMPARE(shares.summary(), QString());
}

void ScanSharesTest::oneCategoryHasItAllAndTellsNothing()
{
    ScanShares shares;
    QAbstractItemModelTester tester(&shares, QAbstractItemModelTester::FailureReportingMode::QtTest);
    shares.setFindings(findingsOf({ 5'000 }));
    QCOMPARE(shares.rowCount(), 1);
    QVERIFY(std::abs(share(shares, 0) - 1) < 1e-9);
    QVERIFY(!shares.isTelling());
}

void ScanSharesTest::addsUpItemsOfACategoryWhereverTheyStand()
{
    ScanShares shares;
    shares.setFindings(ScanFindings(
        { { "/a", std::nullopt, "User Caches", 3'000'000, true }, { "/b", std::nullopt, "Log Files", 2'000'000, true },
            { "/c", std::nullopt, "User Caches", 5'000'000, false } }));
    QCOMPARE(texts(shares, ScanShares::TitleRole), QStringList({ "User Caches", "Log Files" }));
    QCOMPARE(texts(shares, ScanShares::SizeRole), QStringList({ "8 MB", "2 MB" }));
    QCOMPARE(texts(shares, ScanShares::FirstRowRole), QStringList({ "0", "2" }));
    QCOMPARE(texts(shares, ScanShares::ShadeRole), QStringList({ "0", "1" }));
    QCOMPARE(shares.shadeOf(1), 1);
    QVERIFY(shares.isTelling());
    QCOMPARE(shares.summary(), QStringLiteral("User Caches: 8 MB, Log Files: 2 MB"));
    QVERIFY(share(shares, 0) > 0.79 && share(shares, 0) < 0.81);
    verifyFilled(shares);
}

void ScanSharesTest::theSmallestIsStillSeen()
{
    ScanShares shares;
    shares.setFindings(findingsOf({ 4'000'000'000'000, 1, 1, 2'000'000'000'000, 1 }));
    verifyFilled(shares);
    QVERIFY(share(shares, 0) > share(shares, 3));
    // In the narrowest window, less a gap.
    QVERIFY(share(shares, 1) * 664 - 2 >= 2);
}

void ScanSharesTest::asManyAsThereAreColoursHaveOneEach()
{
    ScanShares shares;
    shares.setFindings(findingsOf({ 1, 2, 3, 4, 5, 6, 7 }));
    QCOMPARE(shares.rowCount(), ScanShares::shades);
    QCOMPARE(texts(shares, ScanShares::ShadeRole), QStringList({ "0", "1", "2", "3", "4", "5", "6" }));
    verifyFilled(shares);
}

void ScanSharesTest::ofMoreTheLargestAreNamedAndTheOthersOneTogether()
{
    ScanShares shares;
    QAbstractItemModelTester tester(&shares, QAbstractItemModelTester::FailureReportingMode::QtTest);
    shares.setFindings(findingsOf({ 900, 100, 800, 100, 700, 600, 500, 400, 100 }));
    QCOMPARE(shares.rowCount(), ScanShares::shades);
    QCOMPARE(texts(shares, ScanShares::TitleRole), QStringList({ "0", "2", "4", "5", "6", "7", "3 others" }));
    QCOMPARE(shares.index(6).data(ScanShares::SizeRole).toString(), QStringLiteral("300 bytes"));
    QCOMPARE(shares.index(6).data(ScanShares::ShadeRole).toInt(), -1);
    QCOMPARE(shares.index(6).data(ScanShares::FirstRowRole).toInt(), 1);
    QCOMPARE(shares.shadeOf(2), 1);
    QCOMPARE(shares.shadeOf(3), -1);
    verifyFilled(shares);
}

void ScanSharesTest::equalSharesStayInTheOrderOfTheList()
{
    ScanShares shares;
    shares.setFindings(findingsOf({ 5, 5, 5, 5, 5, 5, 5, 5 }));
    QCOMPARE(texts(shares, ScanShares::TitleRole), QStringList({ "0", "1", "2", "3", "4", "5", "2 others" }));
    verifyFilled(shares);
}

void ScanSharesTest::thousandsOfCategoriesAreQuicklyShared()
{
    std::vector<std::int64_t> sizes;
    for (std::int64_t index = 0; index < 40'000; ++index)
        sizes.push_back(index * 7919 % 100'003 + 1);
    const ScanFindings findings = findingsOf(sizes);
    ScanShares shares;
    // Far less than a frame where nothing else runs; the limit is for a busy machine.
    QElapsedTimer timer;
    timer.start();
    shares.setFindings(findings);
    QVERIFY2(timer.elapsed() < 500, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(shares.rowCount(), ScanShares::shades);
    verifyFilled(shares);
}

QTEST_GUILESS_MAIN(ScanSharesTest)
#include "ScanSharesTest.moc"
