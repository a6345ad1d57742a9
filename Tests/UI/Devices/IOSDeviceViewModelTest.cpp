// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/IOSDeviceViewModel.h"

#include "Platform/DeviceToolsHint.h"
#include "Platform/FileError.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/UI/Devices/DeviceHome.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Korvane;
namespace fs = std::filesystem;
using State = IOSDeviceViewModel::DeviceState;

/// What the screen of the devices knows, with tools that the test lets go on.
class IOSDeviceViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void beginsWithoutAnything();
    void saysThatTheToolsAreMissing();
    void saysThatNothingIsConnected();
    void showsTheDevicesInTheirOrder();
    void bothLoadsRunSideBySide();
    void backupsMayEndLast();
    void aRefreshKeepsWhatWasFound();
    void aSecondDetectionReplacesTheFirst();
    void leavingCancelsADetection();
    void anotherDeviceEndsWhatTheFirstWasListedFor();
    void theSameDeviceKeepsItsCameraRoll();
    void removesABackup();
    void aBackupThatIsGoneIsListedNoMore();
    void aBackupThatTheTrashRefusesStays();
    void whatIsNoBackupIsNotMoved();
    void aRemovalOutlivesItsScreen();
    void asksAboutTheBackupAsItWasFound();

private:
    Host& host() const { return m_home->host(); }
    const StandInDevices& devices() const { return m_home->devices; }
    void load() const
    {
        m_model->load();
        QTRY_VERIFY(!m_model->isDetecting() && !m_model->isScanningBackups());
    }
    QString idOf(std::size_t backup) const
    {
        return QString::fromStdString(m_model->backups().at(backup).id.toString());
    }

    std::unique_ptr<DeviceHome> m_home;
    std::unique_ptr<IOSDeviceViewModel> m_model;
};

void IOSDeviceViewModelTest::init()
{
    m_home = std::make_unique<DeviceHome>();
    m_model = std::make_unique<IOSDeviceViewModel>(host(), m_home->work);
}

void IOSDeviceViewModelTest::cleanup()
{
    m_model.reset();
    m_home->work.reset();
    QCoreApplication::processEvents();
    QVERIFY2(m_home->sentinel.isUnchanged(), m_home->sentinel.difference().c_str());
    m_home.reset();
}

void IOSDeviceViewModelTest::beginsWithoutAnything()
{
    QVERIFY(!m_model->deviceResult() && m_model->deviceState() == State::Unknown && !m_model->isDetecting());
    QVERIFY(m_model->backups().empty() && !m_model->isScanningBackups() && !m_model->isAsking());
    QVERIFY(m_model->media() == nullptr);
    QCOMPARE(m_model->module()->title(), QStringLiteral("iPhone & iPad"));
    QCOMPARE(m_model->module()->subtitle(), QStringLiteral("Clean a connected iPhone or iPad"));
}

void IOSDeviceViewModelTest::saysThatTheToolsAreMissing()
{
    devices().uninstall("idevice_id");
    load();
    QVERIFY(m_model->deviceState() == State::ToolsMissing && m_model->media() == nullptr);
    QCOMPARE(m_model->toolsHint(),
        QStringLiteral("Install libimobiledevice to talk to iPhones and iPads:\n")
            + QString::fromStdString(deviceToolsInstallation(host().environment)));
    QCOMPARE(devices().process("ideviceinfo"), 0);
}

void IOSDeviceViewModelTest::saysThatNothingIsConnected()
{
    load();
    QVERIFY(m_model->deviceState() == State::NoDevice && m_model->media() == nullptr);
}

void IOSDeviceViewModelTest::showsTheDevicesInTheirOrder()
{
    devices().connect("b-second", "Anna's iPhone");
    devices().connect("a-first", "Ben's iPad", "0", "0");
    load();
    QVERIFY(m_model->deviceState() == State::Devices);
    QCOMPARE(m_model->deviceResult()->devices.size(), std::size_t{ 2 });
    const DeviceListModel* rows = m_model->deviceRows();
    QCOMPARE(rows->index(0).data(DeviceListModel::NameRole).toString(), QStringLiteral("Anna's iPhone"));
    QCOMPARE(rows->index(1).data(DeviceListModel::StorageRole).toString(), QString());
    QVERIFY(m_model->media() != nullptr);
    QCOMPARE(m_model->media()->udid(), std::string("b-second"));
}

void IOSDeviceViewModelTest::bothLoadsRunSideBySide()
{
    addBackup(m_home->home(), "one", "Anna's iPhone", 5'000'000);
    devices().connect("a", "Anna's iPhone");
    devices().hold("idevice_id");
    m_model->load();
    QVERIFY(m_model->isDetecting() && m_model->isScanningBackups());
    QTRY_COMPARE(m_model->backups().size(), std::size_t{ 1 });
    QVERIFY(!m_model->isScanningBackups() && m_model->isDetecting() && !m_model->deviceResult());
    devices().letGo("idevice_id");
    QTRY_VERIFY(m_model->deviceState() == State::Devices && !m_model->isDetecting());
}

void IOSDeviceViewModelTest::backupsMayEndLast()
{
    for (int i = 0; i < 300; ++i)
        fs::create_directories(m_home->backups() / std::to_string(i));
    devices().uninstall("idevice_id");
    QSignalSpy detected(m_model.get(), &IOSDeviceViewModel::deviceResultChanged);
    QSignalSpy found(m_model.get(), &IOSDeviceViewModel::backupsChanged);
    m_model->load();
    QTRY_COMPARE(detected.count(), 1);
    QTRY_COMPARE(found.count(), 2);
    QCOMPARE(m_model->backups().size(), std::size_t{ 300 });
    QVERIFY(m_model->deviceState() == State::ToolsMissing);
}

void IOSDeviceViewModelTest::aRefreshKeepsWhatWasFound()
{
    devices().connect("a", "Anna's iPhone");
    load();
    devices().unplugAll();
    devices().hold("idevice_id");
    m_model->refreshDevices();
    QVERIFY(m_model->isDetecting());
    QTest::qWait(100);
    QVERIFY(m_model->deviceState() == State::Devices && m_model->media() != nullptr);
    devices().letGo("idevice_id");
    QTRY_VERIFY(m_model->deviceState() == State::NoDevice);
    QVERIFY(!m_model->isDetecting() && m_model->media() == nullptr);
}

void IOSDeviceViewModelTest::aSecondDetectionReplacesTheFirst()
{
    devices().hold("idevice_id");
    m_model->refreshDevices();
    QTRY_VERIFY(devices().process("idevice_id") != 0);
    const int first = devices().process("idevice_id");
    QSignalSpy detected(m_model.get(), &IOSDeviceViewModel::deviceResultChanged);
    m_model->refreshDevices();
    QTRY_VERIFY(hasEnded(first));
    QVERIFY(m_model->isDetecting() && detected.isEmpty());
    devices().letGo("idevice_id");
    QTRY_VERIFY(!m_model->isDetecting());
    QCOMPARE(detected.count(), 1);
}

void IOSDeviceViewModelTest::leavingCancelsADetection()
{
    devices().connect("a", "Anna's iPhone");
    devices().hold("ideviceinfo");
    m_model->load();
    QTRY_VERIFY(devices().process("ideviceinfo") != 0);
    m_model.reset();
    QTRY_VERIFY(hasEnded(devices().process("ideviceinfo")));
}

void IOSDeviceViewModelTest::anotherDeviceEndsWhatTheFirstWasListedFor()
{
    devices().connect("a", "Anna's iPhone");
    load();
    devices().hold("afcclient");
    m_model->media()->load();
    QTRY_VERIFY(devices().process("afcclient") != 0);
    const int listing = devices().process("afcclient");
    devices().unplugAll();
    devices().connect("b", "Ben's iPad");
    m_model->refreshDevices();
    QTRY_COMPARE(m_model->media()->udid(), std::string("b"));
    QTRY_VERIFY(hasEnded(listing));
    QCOMPARE(m_model->media()->title(), QStringLiteral("Photos & Videos on Ben's iPad"));
    QVERIFY(m_model->media()->folders().empty());
}

void IOSDeviceViewModelTest::theSameDeviceKeepsItsCameraRoll()
{
    devices().connect("a", "Anna's iPhone");
    load();
    IOSMediaViewModel* media = m_model->media();
    devices().unplugAll();
    devices().connect("a", "Renamed");
    load();
    QCOMPARE(m_model->media(), media);
    QCOMPARE(media->title(), QStringLiteral("Photos & Videos on Renamed"));
}

void IOSDeviceViewModelTest::removesABackup()
{
    addBackup(m_home->home(), "small", "Anna's iPhone", 100'000);
    addBackup(m_home->home(), "large", "Ben's iPad", 9'000'000);
    load();
    QCOMPARE(m_model->backups().front().deviceName, std::string("Ben's iPad"));
    m_model->ask(idOf(0));
    QVERIFY(m_model->isAsking());
    QCOMPARE(m_model->question(), QStringLiteral("Delete backup of Ben's iPad?"));
    m_model->deleteAsked();
    QVERIFY(!m_model->isAsking());
    QTRY_COMPARE(m_model->backups().size(), std::size_t{ 1 });
    QVERIFY(isInTestTrash(host().environment, "large") && !fs::exists(m_home->backups() / "large"));
    QVERIFY(fs::exists(m_home->backups() / "small/Manifest.db"));
}

void IOSDeviceViewModelTest::aBackupThatIsGoneIsListedNoMore()
{
    addBackup(m_home->home(), "one", "Anna's iPhone", 100'000);
    load();
    fs::remove_all(m_home->backups() / "one");
    m_model->deleteBackup(m_model->backups().front());
    QTRY_VERIFY(m_model->backups().empty());
    QVERIFY(!isInTestTrash(host().environment, "one"));
}

void IOSDeviceViewModelTest::aBackupThatTheTrashRefusesStays()
{
    const auto files = std::make_shared<ForwardingFileManager>(host().files);
    std::vector<fs::path> refused;
    files->beforeRemoving = [&](const fs::path& path) {
        refused.push_back(path);
        throw FileError(path, std::make_error_code(std::errc::no_space_on_device));
    };
    host().files = files;
    m_model = std::make_unique<IOSDeviceViewModel>(host(), m_home->work);
    addBackup(m_home->home(), "one", "Anna's iPhone", 100'000);
    load();
    QSignalSpy scanned(m_model.get(), &IOSDeviceViewModel::backupsChanged);
    m_model->ask(idOf(0));
    m_model->deleteAsked();
    QTRY_COMPARE(scanned.count(), 2);
    QCOMPARE(refused, std::vector<fs::path>{ m_home->backups() / "one" });
    QCOMPARE(m_model->backupRows()->rowCount(), 1);
    QCOMPARE(m_model->backups().front().url, m_home->backups() / "one");
    QVERIFY(fs::exists(m_home->backups() / "one/Manifest.db") && !isInTestTrash(host().environment, "one"));
}

void IOSDeviceViewModelTest::whatIsNoBackupIsNotMoved()
{
    addBackup(m_home->home(), "one", "Anna's iPhone", 100'000);
    writeFile(m_home->home() / "Documents/Info.plist", "");
    load();
    QSignalSpy scanned(m_model.get(), &IOSDeviceViewModel::backupsChanged);
    // Not one of the folder of backups.
    m_model->deleteBackup({ m_home->home() / "Documents", "Documents", std::nullopt, std::nullopt, 0 });
    QTRY_COMPARE(scanned.count(), 2);
    QCOMPARE(m_model->backups().size(), std::size_t{ 1 });
    QVERIFY(fs::exists(m_home->home() / "Documents/Info.plist"));
}

void IOSDeviceViewModelTest::aRemovalOutlivesItsScreen()
{
    addBackup(m_home->home(), "one", "Anna's iPhone", 100'000);
    load();
    m_model->deleteBackup(m_model->backups().front());
    m_model.reset();
    m_home->work.reset();
    QVERIFY(isInTestTrash(host().environment, "one"));
}

void IOSDeviceViewModelTest::asksAboutTheBackupAsItWasFound()
{
    addBackup(m_home->home(), "one", "Anna's iPhone", 100'000);
    load();
    m_model->ask(QStringLiteral("no such backup"));
    QVERIFY(!m_model->isAsking());
    const IOSBackup asked = m_model->backups().front();
    m_model->ask(idOf(0));
    load();
    QVERIFY(m_model->backups().front().id != asked.id && m_model->backupToDelete() == asked);
    m_model->stopAsking();
    m_model->deleteAsked();
    QTest::qWait(50);
    QVERIFY(fs::exists(m_home->backups() / "one/Manifest.db"));
}

QTEST_GUILESS_MAIN(IOSDeviceViewModelTest)
#include "IOSDeviceViewModelTest.moc"
