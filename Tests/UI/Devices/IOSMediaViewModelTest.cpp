// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/IOSMediaViewModel.h"

#include "Tests/UI/Devices/DeviceHome.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Korvane;
namespace fs = std::filesystem;
using Phase = IOSMediaViewModel::Phase;

/// What is done with the photos of a device, which is a folder of the test's.
class IOSMediaViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsFoldersAndFiles();
    void saysThatTheToolIsMissing();
    void saysThatThereIsNothing();
    void aSecondListingReplacesTheFirst();
    void leavingCancelsAListing();
    void exportsWhatIsTicked();
    void countsExportsThatFail();
    void leavingCancelsAnExport();
    void deletesWhatIsTicked();
    void countsDeletionsThatFail();
    void tellsWhyADeletionCouldNotBegin();
    void aDeletionOutlivesItsScreen();
    void doesOneThingAtATime();
    void whatIsTickedOnOneDeviceIsNotOnAnother();

private:
    const StandInDevices& devices() const { return m_home->devices; }
    void make(const std::string& udid = "a")
    {
        m_model = std::make_unique<IOSMediaViewModel>(
            IOSDevice{ udid, "Anna's iPhone", "17", 0, 0 }, m_home->host(), m_home->work);
    }
    void load() const
    {
        m_model->load();
        QTRY_VERIFY(m_model->phase() != Phase::Loading);
    }
    QString status() const { return m_model->shownStatusMessage(); }
    bool isOnDevice(const std::string& path) const { return fs::exists(devices().media("a", path)); }
    fs::path downloaded(const std::string& name) const { return m_home->host().environment.downloads() / name; }

    std::unique_ptr<DeviceHome> m_home;
    std::unique_ptr<IOSMediaViewModel> m_model;
};

void IOSMediaViewModelTest::init()
{
    m_home = std::make_unique<DeviceHome>();
    devices().connect("a", "Anna's iPhone");
    for (const char* path :
        { "100APPLE/IMG_1.HEIC", "100APPLE/IMG_2.MOV", "100APPLE/IMG_3.JPG", "101APPLE/IMG_4.HEIC" })
        devices().addMedia("a", path);
    fs::create_directories(m_home->home() / "Downloads");
    make();
}

void IOSMediaViewModelTest::cleanup()
{
    m_model.reset();
    m_home->work.reset();
    QCoreApplication::processEvents();
    QVERIFY2(m_home->sentinel.isUnchanged(), m_home->sentinel.difference().c_str());
    m_home.reset();
}

void IOSMediaViewModelTest::listsFoldersAndFiles()
{
    QVERIFY(m_model->phase() == Phase::Loading && m_model->folders().empty() && !m_model->statusMessage());
    QCOMPARE(m_model->title(), QStringLiteral("Photos & Videos on Anna's iPhone"));
    load();
    QVERIFY(m_model->phase() == Phase::Loaded && m_model->failure().isEmpty());
    QCOMPARE(m_model->folders().size(), std::size_t{ 2 });
    QCOMPARE(m_model->folders().front().files.size(), std::size_t{ 3 });
    QCOMPARE(m_model->folders().front().files.front().path, std::string("/DCIM/100APPLE/IMG_1.HEIC"));
    QCOMPARE(m_model->selectionText(), QStringLiteral("0 files selected"));
    QVERIFY(!m_model->isReady() && !m_model->isWorking());
}

void IOSMediaViewModelTest::saysThatTheToolIsMissing()
{
    devices().uninstall("afcclient");
    load();
    QVERIFY(m_model->phase() == Phase::Failed);
    QCOMPARE(m_model->failure(), QString::fromUtf8("afcclient not found — install libimobiledevice"));
}

void IOSMediaViewModelTest::saysThatThereIsNothing()
{
    fs::remove_all(devices().media("a", ""));
    load();
    QVERIFY(m_model->phase() == Phase::Loaded && m_model->isEmpty());
}

void IOSMediaViewModelTest::aSecondListingReplacesTheFirst()
{
    devices().hold("afcclient");
    m_model->load();
    QTRY_VERIFY(devices().process("afcclient") != 0);
    const int first = devices().process("afcclient");
    QSignalSpy phases(m_model.get(), &IOSMediaViewModel::phaseChanged);
    m_model->load();
    QTRY_VERIFY(hasEnded(first));
    devices().letGo("afcclient");
    QTRY_VERIFY(m_model->phase() == Phase::Loaded);
    QCOMPARE(phases.count(), 2);
}

void IOSMediaViewModelTest::leavingCancelsAListing()
{
    devices().hold("afcclient");
    m_model->load();
    QTRY_VERIFY(devices().process("afcclient") != 0);
    m_model.reset();
    QTRY_VERIFY(hasEnded(devices().process("afcclient")));
}

void IOSMediaViewModelTest::exportsWhatIsTicked()
{
    load();
    m_model->rows()->toggleFile(0, 1);
    m_model->rows()->toggleFolder(1);
    QCOMPARE(m_model->selectionText(), QStringLiteral("2 files selected"));
    QVERIFY(m_model->isReady());
    m_model->exportSelected();
    QVERIFY(m_model->isWorking() && !m_model->isReady());
    QCOMPARE(status(), QString::fromUtf8("Exporting 2 files to Downloads…"));
    QTRY_VERIFY(!m_model->isWorking());
    QCOMPARE(status(), QStringLiteral("Exported 2 files to Downloads."));
    QCOMPARE(readFile(downloaded("IMG_2.MOV")), std::string("100APPLE/IMG_2.MOV"));
    QCOMPARE(readFile(downloaded("IMG_4.HEIC")), std::string("101APPLE/IMG_4.HEIC"));
    QVERIFY(!fs::exists(downloaded("IMG_1.HEIC")) && isOnDevice("100APPLE/IMG_2.MOV"));
    // What is ticked stays so.
    QVERIFY(m_model->isReady());
}

void IOSMediaViewModelTest::countsExportsThatFail()
{
    devices().refuse("100APPLE/IMG_1.HEIC");
    writeFile(downloaded("IMG_3.JPG"), "an older photo");
    load();
    m_model->rows()->toggleFolder(0);
    m_model->exportSelected();
    QTRY_VERIFY(!m_model->isWorking());
    QCOMPARE(status(), QStringLiteral("Exported 1 files, 2 failed."));
    QVERIFY(fs::exists(downloaded("IMG_2.MOV")) && !fs::exists(downloaded("IMG_1.HEIC")));
    QCOMPARE(readFile(downloaded("IMG_3.JPG")), std::string("an older photo"));
}

void IOSMediaViewModelTest::leavingCancelsAnExport()
{
    load();
    m_model->rows()->toggleFolder(0);
    const int before = devices().process("afcclient");
    devices().hold("afcclient");
    m_model->exportSelected();
    QTRY_VERIFY(devices().process("afcclient") != before);
    m_model.reset();
    QTRY_VERIFY(hasEnded(devices().process("afcclient")));
    devices().letGo("afcclient");
    m_home->work.reset();
    QVERIFY(fs::is_empty(m_home->home() / "Downloads"));
}

void IOSMediaViewModelTest::deletesWhatIsTicked()
{
    load();
    m_model->rows()->toggleFolder(0);
    m_model->rows()->toggleFolder(1);
    m_model->rows()->toggleFile(0, 0);
    QCOMPARE(m_model->deletionQuestion(), QStringLiteral("Delete 3 files from Anna's iPhone?"));
    m_model->rows()->toggleFile(0, 0);
    QSignalSpy phases(m_model.get(), &IOSMediaViewModel::phaseChanged);
    m_model->deleteSelected();
    QVERIFY(m_model->isWorking());
    QCOMPARE(status(), QString::fromUtf8("Deleting 4 files…"));
    QTRY_VERIFY(!m_model->isWorking());
    QCOMPARE(status(), QStringLiteral("Deleted 4 files."));
    QTRY_VERIFY(m_model->phase() == Phase::Loaded && m_model->isEmpty());
    // Listed again.
    QCOMPARE(phases.count(), 2);
    QVERIFY(!isOnDevice("100APPLE/IMG_1.HEIC") && !isOnDevice("101APPLE/IMG_4.HEIC"));
    QCOMPARE(m_model->selectionText(), QStringLiteral("0 files selected"));
}

void IOSMediaViewModelTest::countsDeletionsThatFail()
{
    devices().refuse("100APPLE/IMG_2.MOV");
    load();
    m_model->rows()->toggleFolder(0);
    m_model->deleteSelected();
    QTRY_VERIFY(!m_model->isWorking());
    QCOMPARE(status(), QStringLiteral("Deleted 2 files, 1 failed."));
    QTRY_VERIFY(m_model->phase() == Phase::Loaded);
    QVERIFY(isOnDevice("100APPLE/IMG_2.MOV") && !isOnDevice("100APPLE/IMG_1.HEIC"));
    QVERIFY(isOnDevice("101APPLE/IMG_4.HEIC"));
    // The one that stayed is still ticked.
    QCOMPARE(m_model->selectionText(), QStringLiteral("1 files selected"));
}

void IOSMediaViewModelTest::tellsWhyADeletionCouldNotBegin()
{
    load();
    m_model->rows()->toggleFile(0, 0);
    devices().uninstall("afcclient");
    m_model->deleteSelected();
    QTRY_VERIFY(!m_model->isWorking());
    QCOMPARE(status(), QString::fromUtf8("afcclient not found — install libimobiledevice"));
    QTRY_VERIFY(m_model->phase() == Phase::Failed);
    QVERIFY(isOnDevice("100APPLE/IMG_1.HEIC"));
}

void IOSMediaViewModelTest::aDeletionOutlivesItsScreen()
{
    load();
    m_model->rows()->toggleFile(0, 0);
    const int before = devices().process("afcclient");
    devices().hold("afcclient");
    m_model->deleteSelected();
    QTRY_VERIFY(devices().process("afcclient") != before);
    m_model.reset();
    // Another screen of the same device hears of it.
    make();
    QVERIFY(m_model->isWorking());
    QCOMPARE(m_model->shownStatusMessage(), QStringLiteral("Deleting 1 files…"));
    devices().letGo("afcclient");
    QTRY_VERIFY(m_model->phase() == Phase::Loaded);
    QVERIFY(!isOnDevice("100APPLE/IMG_1.HEIC") && isOnDevice("100APPLE/IMG_2.MOV"));
    QCOMPARE(m_model->folders().front().files.size(), std::size_t{ 2 });
    QVERIFY(!m_model->isWorking());
    QCOMPARE(m_model->shownStatusMessage(), QStringLiteral("Deleted 1 files."));
}

void IOSMediaViewModelTest::doesOneThingAtATime()
{
    load();
    m_model->exportSelected();
    m_model->deleteSelected();
    QVERIFY(!m_model->isWorking() && !m_model->statusMessage());
    m_model->rows()->toggleFile(0, 0);
    m_model->exportSelected();
    m_model->deleteSelected();
    m_model->exportSelected();
    QCOMPARE(status(), QString::fromUtf8("Exporting 1 files to Downloads…"));
    QTRY_VERIFY(!m_model->isWorking());
    QVERIFY(isOnDevice("100APPLE/IMG_1.HEIC"));
}

void IOSMediaViewModelTest::whatIsTickedOnOneDeviceIsNotOnAnother()
{
    devices().connect("b", "Ben's iPad");
    devices().addMedia("b", "100APPLE/IMG_1.HEIC");
    load();
    m_model->rows()->toggleFile(0, 0);
    make("b");
    load();
    QVERIFY(!m_model->isReady());
    m_model->deleteSelected();
    QTest::qWait(100);
    QVERIFY(fs::exists(devices().media("b", "100APPLE/IMG_1.HEIC")) && isOnDevice("100APPLE/IMG_1.HEIC"));
}

QTEST_GUILESS_MAIN(IOSMediaViewModelTest)
#include "IOSMediaViewModelTest.moc"
