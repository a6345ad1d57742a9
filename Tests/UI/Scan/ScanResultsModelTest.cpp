// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanResultsModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace Korvane;

namespace {

std::vector<ScanItem> someItems()
{
    return {
        { "/home/someone/Library/Caches/big", std::nullopt, "User Caches", 3'000'000, true },
        { "/home/someone/Library/Logs/app.log", std::nullopt, "Log Files", 2'000, true },
        { "/home/someone/Library/Caches/com.apple.x", std::nullopt, "User Caches", 1'000, false },
        { "/var/tmp/thing", "a thing", "Temporary Files", 500, false },
    };
}

std::shared_ptr<const ScanFindings> findingsOf(std::vector<ScanItem> items)
{
    return std::make_shared<const ScanFindings>(std::move(items));
}

void show(ScanResultsModel& model, const std::shared_ptr<const ScanFindings>& findings)
{
    model.setFindings(findings, ScanSelection::ofDefaults(findings));
}

QStringList column(const ScanResultsModel& model, ScanResultsModel::Role role)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts << model.index(row).data(role).toString();
    return texts;
}

} // namespace

class ScanResultsModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void holdsTheModelContract();
    void groupsRowsByCategoryInOrderOfFirstOccurrence();
    void showsWhereEachItemLies();
    void showsANameThatIsNotUtf8();
    void saysOfRowsThatShareTheirStorageWhatCleaningDoes();
    void ticksByIdentityAndAnnouncesOnlyThatRow();
    void ignoresAnIdentityFromAnotherScan();
    void ticksWhatIsSelectableByDefaultInACategory();
    void ticksAllOfACategoryInWhichNothingIsTickedByDefault();
    void neverTicksAnOriginalAlongWithItsCopies();
    void sumsExactlyWhatIsTicked();
    void takesAHundredThousandItems();
};

void ScanResultsModelTest::holdsTheModelContract()
{
    ScanResultsModel model("/home/someone");
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    show(model, findingsOf(someItems()));
    model.setAllTicked(true);
    model.toggleCategory("User Caches");
    model.setTicked(model.index(0).data(ScanResultsModel::ItemIdRole).toString(), true);
    show(model, findingsOf({}));
    show(model, findingsOf(someItems()));
    model.clear();
    QCOMPARE(model.rowCount(), 0);
}

void ScanResultsModelTest::groupsRowsByCategoryInOrderOfFirstOccurrence()
{
    ScanResultsModel model("/home/someone");
    show(model, findingsOf(someItems()));
    QCOMPARE(column(model, ScanResultsModel::CategoryRole),
        QStringList({ "User Caches", "User Caches", "Log Files", "Temporary Files" }));
    QCOMPARE(column(model, ScanResultsModel::NameRole), QStringList({ "big", "com.apple.x", "app.log", "a thing" }));
    QCOMPARE(column(model, ScanResultsModel::ShieldedRole), QStringList({ "false", "true", "false", "true" }));
    QCOMPARE(column(model, ScanResultsModel::SizeRole), QStringList({ "3 MB", "1 KB", "2 KB", "500 bytes" }));
}

void ScanResultsModelTest::showsWhereEachItemLies()
{
    ScanResultsModel model("/home/someone");
    show(model,
        findingsOf({ { "/home/someone/a", std::nullopt, "x", 1, true },
            { "/home/someone-else/b", std::nullopt, "x", 1, true }, { "/c", std::nullopt, "x", 1, true },
            { "/home/someone/Library/Caches/d", std::nullopt, "x", 1, true } }));
    QCOMPARE(column(model, ScanResultsModel::FolderRole),
        QStringList({ "~", "/home/someone-else", "/", "~/Library/Caches" }));
    QCOMPARE(model.index(3).data(ScanResultsModel::PathRole).toString(), "/home/someone/Library/Caches/d");
}

void ScanResultsModelTest::showsANameThatIsNotUtf8()
{
    ScanResultsModel model("/home/someone");
    show(model, findingsOf({ { "/home/someone/caf\xe9/\xff.log", "shown", "Log Files", 1, true } }));
    QCOMPARE(model.index(0).data(ScanResultsModel::FolderRole).toString(), QStringLiteral("~/caf\uFFFD"));
    QCOMPARE(model.index(0).data(ScanResultsModel::PathRole).toString(),
        QStringLiteral("/home/someone/caf\uFFFD/\uFFFD.log"));
}

void ScanResultsModelTest::saysOfRowsThatShareTheirStorageWhatCleaningDoes()
{
    std::vector<ScanItem> items = someItems();
    SharedStorageOfItems shared{ { items[0].id, SharedStorage::OneFile }, { items[1].id, SharedStorage::OneName } };
    const auto findings = std::make_shared<const ScanFindings>(std::move(items), std::move(shared));
    ScanResultsModel model("/home/someone");
    show(model, findings);
    QCOMPARE(column(model, ScanResultsModel::SharedHelpRole),
        QStringList({ "All files of this set are one file under several names: removing copies frees no space.", "",
            "Another path of this set leads to this same file: cleaning one removes both.", "" }));
    QCOMPARE(model.roleNames().value(ScanResultsModel::SharedHelpRole), QByteArray("sharedHelp"));
}

void ScanResultsModelTest::ticksByIdentityAndAnnouncesOnlyThatRow()
{
    ScanResultsModel model("/home/someone");
    show(model, findingsOf(someItems()));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const QModelIndex row = model.index(1);
    QCOMPARE(row.data(ScanResultsModel::TickedRole).toBool(), false);

    model.setTicked(row.data(ScanResultsModel::ItemIdRole).toString(), true);
    QCOMPARE(row.data(ScanResultsModel::TickedRole).toBool(), true);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toModelIndex(), row);
    QCOMPARE(changed.first().at(1).toModelIndex(), row);

    model.setTicked(row.data(ScanResultsModel::ItemIdRole).toString(), true);
    QCOMPARE(changed.count(), 1);
}

void ScanResultsModelTest::ignoresAnIdentityFromAnotherScan()
{
    ScanResultsModel model("/home/someone");
    show(model, findingsOf(someItems()));
    const QString stale = model.index(0).data(ScanResultsModel::ItemIdRole).toString();
    show(model, findingsOf(someItems()));
    const std::int64_t before = model.selection().bytes();
    model.setTicked(stale, false);
    model.setTicked(QStringLiteral("not an identity"), true);
    model.setTicked(QString(), true);
    QCOMPARE(model.selection().bytes(), before);
    QVERIFY(!model.item(stale));
    QVERIFY(model.item(model.index(0).data(ScanResultsModel::ItemIdRole).toString()));
}

void ScanResultsModelTest::ticksWhatIsSelectableByDefaultInACategory()
{
    ScanResultsModel model("/home/someone");
    show(model, findingsOf(someItems()));
    QCOMPARE(model.category("User Caches").sizeText, "3 MB");
    QCOMPARE(model.category("User Caches").itemCount, 2);
    QCOMPARE(model.category("User Caches").tickedCount, 1);

    const auto ticks = [&] { return column(model, ScanResultsModel::TickedRole); };
    model.toggleCategory("User Caches");
    QCOMPARE(ticks(), QStringList({ "false", "false", "true", "false" }));
    QCOMPARE(model.category("User Caches").tickedCount, 0);
    model.toggleCategory("User Caches");
    QCOMPARE(ticks(), QStringList({ "true", "false", "true", "false" }));
    model.setAllTicked(true);
    model.toggleCategory("User Caches");
    QCOMPARE(ticks(), QStringList({ "false", "false", "true", "true" }));
    model.setTicked(model.index(1).data(ScanResultsModel::ItemIdRole).toString(), true);
    model.toggleCategory("User Caches");
    QCOMPARE(ticks(), QStringList({ "true", "true", "true", "true" }));
    QCOMPARE(model.selection().bytes(), model.findings().totalBytes());

    const std::int64_t before = model.selection().bytes();
    model.toggleCategory("no such category");
    QCOMPARE(model.selection().bytes(), before);
    QCOMPARE(model.category("no such category"), ScanCategory());
}

void ScanResultsModelTest::ticksAllOfACategoryInWhichNothingIsTickedByDefault()
{
    ScanResultsModel model("/home/someone");
    std::vector<ScanItem> items;
    for (const char* path : { "/a", "/b", "/c" })
        items.emplace_back(path, std::nullopt, "Large Files", 5, false);
    show(model, findingsOf(std::move(items)));
    model.toggleCategory("Large Files");
    QCOMPARE(model.category("Large Files").tickedCount, 3);
    model.setTicked(model.index(1).data(ScanResultsModel::ItemIdRole).toString(), false);
    model.toggleCategory("Large Files");
    QCOMPARE(model.category("Large Files").tickedCount, 3);
    model.toggleCategory("Large Files");
    QCOMPARE(model.category("Large Files").tickedCount, 0);
}

void ScanResultsModelTest::neverTicksAnOriginalAlongWithItsCopies()
{
    ScanResultsModel model("/home/someone");
    const char* label = "a \u2014 3 copies, 5 bytes each";
    show(model,
        findingsOf({ { "/a", "a (original)", label, 5, false }, { "/b", std::nullopt, label, 5, true },
            { "/c", std::nullopt, label, 5, true } }));
    for (int press = 0; press < 6; ++press) {
        QCOMPARE(column(model, ScanResultsModel::TickedRole),
            press % 2 == 0 ? QStringList({ "false", "true", "true" }) : QStringList({ "false", "false", "false" }));
        model.toggleCategory(QString::fromUtf8(label));
    }
}

void ScanResultsModelTest::sumsExactlyWhatIsTicked()
{
    const auto findings = findingsOf(someItems());
    ScanSelection selection = ScanSelection::ofDefaults(findings);
    QCOMPARE(selection.size(), 2U);
    QCOMPARE(selection.bytes(), 3'002'000);
    QVERIFY(selection.contains(findings->items()[0].id));
    QVERIFY(!selection.contains(findings->items()[2].id));
    QVERIFY(!selection.contains(Uuid::random()));

    selection.setItem(3, true);
    selection.setItem(0, false);
    QCOMPARE(selection.bytes(), 2'500);
    QCOMPARE(selection.items(), (std::vector<ScanItem>{ findings->items()[1], findings->items()[3] }));

    selection.setAll(true);
    QCOMPARE(selection.bytes(), findings->totalBytes());
    QCOMPARE(selection.items(), findings->items());
    selection.setAll(false);
    QCOMPARE(selection.bytes(), 0);
    QCOMPARE(selection.size(), 0U);
}

void ScanResultsModelTest::takesAHundredThousandItems()
{
    constexpr int count = 100'000;
    std::vector<ScanItem> items;
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        items.emplace_back("/home/someone/" + number, std::nullopt, "set " + std::to_string(i / 2), i, i % 2 == 1);
    }
    ScanResultsModel model("/home/someone");
    show(model, findingsOf(std::move(items)));
    QCOMPARE(model.rowCount(), count);
    QCOMPARE(model.selection().size(), std::size_t{ count } / 2);
    QCOMPARE(model.findings().totalBytes(), std::int64_t{ count } * (count - 1) / 2);
    model.setAllTicked(true);
    QCOMPARE(model.selection().bytes(), model.findings().totalBytes());
    for (int row = 0; row < count; row += 2)
        model.setTicked(model.index(row).data(ScanResultsModel::ItemIdRole).toString(), false);
    QCOMPARE(model.selection().size(), std::size_t{ count } / 2);
    QCOMPARE(model.selection().bytes(), std::int64_t{ count / 2 } * (count / 2));
}

QTEST_GUILESS_MAIN(ScanResultsModelTest)
#include "ScanResultsModelTest.moc"
