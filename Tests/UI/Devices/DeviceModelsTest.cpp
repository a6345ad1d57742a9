// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Devices/BackupListModel.h"
#include "UI/Devices/DeviceListModel.h"
#include "UI/Devices/DeviceTexts.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

#include <limits>

using namespace Korvane;

/// What the rows of devices and backups say.
class DeviceModelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDeviceSaysHowFullItIs();
    void aDeviceOfUnknownSizeSaysNothingOfIt();
    void aDeviceMayClaimAnything();
    void aBackupSaysWhatIsKnown();
    void backupsAreFoundByTheirIds();
    void hostileNamesAreShownHarmlessly();
    void videosAreToldFromPhotos_data();
    void videosAreToldFromPhotos();
};

namespace {

IOSBackup backup(std::optional<std::string> version, std::optional<QDate> day)
{
    std::optional<IOSBackup::Date> date;
    if (day)
        date = IOSBackup::Date(std::chrono::milliseconds(QDateTime(*day, QTime(12, 0)).toMSecsSinceEpoch()));
    return { "/backups/one", "Anna's iPhone", std::move(version), date, 20'000'000'000 };
}

} // namespace

void DeviceModelsTest::aDeviceSaysHowFullItIs()
{
    DeviceListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setDevices({ { "00008110", "Anna's iPhone", "17.4.1", 128'000'000'000, 28'000'000'000 } });
    const QModelIndex row = model.index(0);
    QCOMPARE(row.data(DeviceListModel::NameRole).toString(), QStringLiteral("Anna's iPhone"));
    QCOMPARE(row.data(DeviceListModel::VersionRole).toString(), QStringLiteral("iOS 17.4.1"));
    QCOMPARE(row.data(DeviceListModel::UsedFractionRole).toDouble(), 100.0 / 128.0);
    QCOMPARE(
        row.data(DeviceListModel::StorageRole).toString(), QString::fromUtf8("100 GB used of 128 GB — 28 GB free"));
}

void DeviceModelsTest::aDeviceOfUnknownSizeSaysNothingOfIt()
{
    for (const std::int64_t total : { std::int64_t{ 0 }, std::int64_t{ -5 } }) {
        const IOSDevice device{ "a", "b", "?", total, 7 };
        QCOMPARE(DeviceTexts::storage(device), QString());
        QCOMPARE(DeviceTexts::usedFraction(device), 0.0);
        QCOMPARE(DeviceTexts::version(device.productVersion), QStringLiteral("iOS ?"));
    }
}

void DeviceModelsTest::aDeviceMayClaimAnything()
{
    using Limits = std::numeric_limits<std::int64_t>;
    for (const std::int64_t total : { std::int64_t{ 1 }, Limits::max() }) {
        for (const std::int64_t free : { Limits::min(), std::int64_t{ -1 }, std::int64_t{ 0 }, Limits::max() }) {
            const IOSDevice device{ "a", "b", "?", total, free };
            const double used = DeviceTexts::usedFraction(device);
            QVERIFY(used >= 0 && used <= 1);
            QVERIFY(DeviceTexts::storage(device).contains(QStringLiteral(" used of ")));
        }
    }
}

void DeviceModelsTest::aBackupSaysWhatIsKnown()
{
    const QDate day(2024, 3, 9);
    QCOMPARE(DeviceTexts::detail(backup("17.4.1", day)), QString::fromUtf8("iOS 17.4.1 · last backup 9 Mar 2024"));
    QCOMPARE(DeviceTexts::detail(backup("17.4.1", std::nullopt)), QStringLiteral("iOS 17.4.1"));
    QCOMPARE(DeviceTexts::detail(backup(std::nullopt, day)), QString::fromUtf8("· last backup 9 Mar 2024"));
    QCOMPARE(DeviceTexts::detail(backup(std::nullopt, std::nullopt)), QString());
    IOSBackup never = backup("1", std::nullopt);
    for (const auto date : { IOSBackup::Date::min(), IOSBackup::Date::max() }) {
        never.lastBackupDate = date;
        QVERIFY(DeviceTexts::detail(never).startsWith(QStringLiteral("iOS 1")));
    }
}

void DeviceModelsTest::backupsAreFoundByTheirIds()
{
    BackupListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setBackups({ backup("17", std::nullopt), backup("16", std::nullopt) });
    QCOMPARE(model.count(), 2);
    const QString id = model.index(1).data(BackupListModel::BackupIdRole).toString();
    QVERIFY(model.backup(id) == &model.backups()[1]);
    QCOMPARE(model.index(1).data(BackupListModel::SizeRole).toString(), QStringLiteral("20 GB"));
    QCOMPARE(model.index(1).data(BackupListModel::PathRole).toString(), QStringLiteral("/backups/one"));
    model.setBackups({ backup("16", std::nullopt) });
    QVERIFY(model.backup(id) == nullptr && model.backup({}) == nullptr);
}

void DeviceModelsTest::hostileNamesAreShownHarmlessly()
{
    const QString shown = DeviceTexts::name("two\nlines \xff \xe2\x80\xae"
                                            "gpj\x1b[31m");
    QVERIFY(!shown.contains(QLatin1Char('\n')) && !shown.contains(QChar(0x202e)) && !shown.contains(QChar(0x1b)));
    QVERIFY(shown.contains(QStringLiteral("[U+202E]")) && shown.contains(QChar(0xfffd)));
    QVERIFY(DeviceTexts::name(std::string(3'000'000, 'w')).size() <= 160);
    QVERIFY(DeviceTexts::version(std::string(3'000'000, '1')).size() <= 170);
    QVERIFY(DeviceTexts::message(QString(3'000'000, QLatin1Char('e'))).size() <= 1024);
}

void DeviceModelsTest::videosAreToldFromPhotos_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isVideo");
    for (const char* video : { "IMG_1.MOV", "IMG_1.mov", "a.b.Mp4", "x.m4v", "x..mov" })
        QTest::newRow(video) << QString::fromUtf8(video) << true;
    for (const char* photo : { "IMG_1.HEIC", "mov", ".mov", "IMG.MOV.AAE", "x.mov ", "x.", "" })
        QTest::newRow(photo) << QString::fromUtf8(photo) << false;
}

void DeviceModelsTest::videosAreToldFromPhotos()
{
    QFETCH(QString, name);
    QFETCH(bool, isVideo);
    QCOMPARE(DeviceTexts::symbol({ "/DCIM/100APPLE/x", name.toStdString() }),
        isVideo ? QStringLiteral("video.fill") : QStringLiteral("photo.fill"));
}

QTEST_GUILESS_MAIN(DeviceModelsTest)
#include "DeviceModelsTest.moc"
