// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/AppListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace Korvane;

class AppListModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void staysAProperModelWhateverHappens();
    void showsNameLeftoversAndTotal();
    void saysLeftoverItemsForEveryNumber();
    void searchesNamesWhateverTheCase();
    void clearingTheSearchRestoresTheOrder();
    void keepsAccentsApart();
    void selectsByIdOverAllApplications();
    void tellsOnlyTheTwoRowsThatChange();
    void showsHostileNamesHarmlessly();
    void searchesFiveHundredNamesAtOnce();
};

namespace {

InstalledApp app(const std::string& name, std::int64_t size, int leftovers = 0)
{
    std::vector<ScanItem> items;
    for (int i = 0; i < leftovers; ++i)
        items.emplace_back("/left/" + name + std::to_string(i), std::nullopt, "Caches", 1'000'000, true);
    return { "/Applications/" + name + ".app", name, "org.example." + name, size, items };
}

std::vector<InstalledApp> someApps()
{
    return { app("Voicemail Tool", 9'000'000, 2), app("Notes", 5'000'000), app("Mail", 3'000'000, 1) };
}

QStringList names(const AppListModel& model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.data(model.index(row), AppListModel::NameRole).toString());
    return names;
}

QString text(const AppListModel& model, int row, AppListModel::Role role)
{
    return model.data(model.index(row), role).toString();
}

} // namespace

void AppListModelTest::staysAProperModelWhateverHappens()
{
    AppListModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setApps(someApps());
    model.setSelectedAppID(model.apps()[2].id);
    model.setSearchText(QStringLiteral("mail"));
    model.setSearchText(QStringLiteral("nothing of the kind"));
    model.setSelectedAppID(std::nullopt);
    model.setSearchText(QString());
    model.setApps({});
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(!model.data(model.index(0), AppListModel::NameRole).isValid());
    QVERIFY(!model.idInRow(0) && !model.idInRow(-1));
}

void AppListModelTest::showsNameLeftoversAndTotal()
{
    AppListModel model;
    model.setApps(someApps());
    QCOMPARE(model.count(), 3);
    QCOMPARE(text(model, 0, AppListModel::NameRole), QStringLiteral("Voicemail Tool"));
    QCOMPARE(text(model, 0, AppListModel::LeftoversTextRole), QStringLiteral("2 leftover items"));
    QCOMPARE(text(model, 0, AppListModel::SizeRole), QStringLiteral("11 MB"));
    const QString id = QString::fromStdString(model.apps()[0].id.toString());
    QCOMPARE(text(model, 0, AppListModel::AppIdRole), id);
    QCOMPARE(text(model, 0, AppListModel::IconRole), QStringLiteral("image://applications/") + id);
}

void AppListModelTest::saysLeftoverItemsForEveryNumber()
{
    AppListModel model;
    model.setApps({ app("None", 3), app("One", 2, 1), app("Seven", 1, 7) });
    QCOMPARE(text(model, 0, AppListModel::LeftoversTextRole), QStringLiteral("0 leftover items"));
    QCOMPARE(text(model, 1, AppListModel::LeftoversTextRole), QStringLiteral("1 leftover items"));
    QCOMPARE(text(model, 2, AppListModel::LeftoversTextRole), QStringLiteral("7 leftover items"));
}

void AppListModelTest::searchesNamesWhateverTheCase()
{
    AppListModel model;
    model.setApps(someApps());
    model.setSearchText(QStringLiteral("MAIL"));
    QCOMPARE(names(model), QStringList({ "Voicemail Tool", "Mail" }));
    QCOMPARE(model.filteredApps(), std::vector<InstalledApp>({ model.apps()[0], model.apps()[2] }));
    model.setSearchText(QStringLiteral("org.example"));
    QCOMPARE(model.count(), 0);
}

void AppListModelTest::clearingTheSearchRestoresTheOrder()
{
    AppListModel model;
    model.setApps(someApps());
    model.setSearchText(QStringLiteral("mail"));
    QSignalSpy counts(&model, &AppListModel::countChanged);
    model.setSearchText(QString());
    QCOMPARE(counts.count(), 1);
    QCOMPARE(names(model), QStringList({ "Voicemail Tool", "Notes", "Mail" }));
    QCOMPARE(model.filteredApps(), model.apps());
}

void AppListModelTest::keepsAccentsApart()
{
    AppListModel model;
    model.setApps({ app("Ünfold", 2), app("Unfold", 1) });
    model.setSearchText(QStringLiteral("unf"));
    QCOMPARE(names(model), QStringList({ "Unfold" }));
    model.setSearchText(QString::fromUtf8("ÜNF"));
    QCOMPARE(names(model), QStringList({ QString::fromUtf8("Ünfold") }));
}

void AppListModelTest::selectsByIdOverAllApplications()
{
    AppListModel model;
    model.setApps(someApps());
    model.setSelectedAppID(model.idInRow(1));
    QCOMPARE(model.selectedRow(), 1);
    QVERIFY(model.data(model.index(1), AppListModel::SelectedRole).toBool());
    model.setSearchText(QStringLiteral("MAIL"));
    QCOMPARE(model.selectedRow(), -1);
    QCOMPARE(model.selectedApp(), &model.apps()[1]);
    model.setSearchText(QString());
    QCOMPARE(model.selectedRow(), 1);
    model.setSelectedAppID(Uuid::random());
    QVERIFY(!model.selectedApp());
    QCOMPARE(model.selectedRow(), -1);
}

void AppListModelTest::tellsOnlyTheTwoRowsThatChange()
{
    AppListModel model;
    model.setApps(someApps());
    model.setSelectedAppID(model.idInRow(0));
    QSignalSpy changes(&model, &AppListModel::dataChanged);
    model.setSelectedAppID(model.idInRow(2));
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes[0][0].toModelIndex().row(), 0);
    QCOMPARE(changes[1][0].toModelIndex().row(), 2);
    model.setSelectedAppID(model.idInRow(2));
    QCOMPARE(changes.count(), 2);
}

void AppListModelTest::showsHostileNamesHarmlessly()
{
    AppListModel model;
    model.setApps({ app("evil\xE2\x80\xAEgpj\n<b>", 1) });
    QCOMPARE(text(model, 0, AppListModel::NameRole), QString::fromUtf8("evil[U+202E]gpj\u240A<b>"));
}

void AppListModelTest::searchesFiveHundredNamesAtOnce()
{
    std::vector<InstalledApp> apps;
    for (int i = 0; i < 500; ++i)
        apps.push_back(app("Application number " + std::to_string(i), 1'000'000 - i));
    AppListModel model;
    model.setApps(std::move(apps));
    QElapsedTimer timer;
    timer.start();
    model.setSearchText(QStringLiteral("NUMBER 49"));
    qInfo("500 names searched in %lld us", static_cast<long long>(timer.nsecsElapsed() / 1000));
    QCOMPARE(model.count(), 11);
}

QTEST_GUILESS_MAIN(AppListModelTest)
#include "AppListModelTest.moc"
