// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Devices/DeviceHome.h"
#include "UI/IOSMediaViewModel.h"

#include <QtTest>

using namespace Korvane;
namespace fs = std::filesystem;

/// What becomes of an export when the folder of downloads is not there.
class MediaDownloadsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void makesTheFolderOfDownloads();
    void countsExportsForWhichThereIsNoFolder_data();
    void countsExportsForWhichThereIsNoFolder();

private:
    /// Exports all that is on a device with one photo, and gives what the screen says then.
    static QString exportAll(DeviceHome& home);
};

QString MediaDownloadsTest::exportAll(DeviceHome& home)
{
    home.devices.connect("a", "Anna's iPhone");
    home.devices.addMedia("a", "100APPLE/IMG_1.HEIC");
    IOSMediaViewModel model(IOSDevice{ "a", "Anna's iPhone", "17", 0, 0 }, home.host(), home.work);
    model.load();
    const bool isListed = QTest::qWaitFor([&] { return model.phase() == IOSMediaViewModel::Phase::Loaded; });
    model.rows()->toggleFolder(0);
    model.exportSelected();
    const bool isExported = QTest::qWaitFor([&] { return !model.isWorking(); });
    return isListed && isExported ? model.shownStatusMessage() : QStringLiteral("has not ended");
}

void MediaDownloadsTest::makesTheFolderOfDownloads()
{
    DeviceHome home;
    QCOMPARE(exportAll(home), QStringLiteral("Exported 1 files to Downloads."));
    QCOMPARE(readFile(home.home() / "Downloads/IMG_1.HEIC"), std::string("100APPLE/IMG_1.HEIC"));
}

void MediaDownloadsTest::countsExportsForWhichThereIsNoFolder_data()
{
    QTest::addColumn<bool>("isFile");
    QTest::newRow("a file") << true;
    QTest::newRow("a link that leads nowhere") << false;
}

void MediaDownloadsTest::countsExportsForWhichThereIsNoFolder()
{
    QFETCH(const bool, isFile);
    DeviceHome home;
    const auto place = home.home() / "Downloads";
    if (isFile)
        writeFile(place, "a letter");
    else
        fs::create_symlink(home.home() / "nowhere", place);
    QCOMPARE(exportAll(home), QStringLiteral("Exported 0 files, 1 failed."));
    QVERIFY(isFile ? readFile(place) == "a letter" : fs::is_symlink(fs::symlink_status(place)));
    QVERIFY(!fs::exists(home.home() / "nowhere"));
}

QTEST_GUILESS_MAIN(MediaDownloadsTest)
#include "MediaDownloadsTest.moc"
