// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Devices/DeviceWork.h"

#include "Core/Devices/IOSMediaManager.h"
#include "Tests/UI/Devices/DeviceHome.h"

#include <QtTest>

#include <chrono>
#include <future>
#include <thread>

using namespace Korvane;
namespace fs = std::filesystem;

/// What becomes of a deletion that is under way when the program quits.
class DeviceWorkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void quittingLetsADeletionComeToItsEnd();
    void quittingEndsADeletionThatHangs();
    void quittingDoesNotWaitToFindOutWhatIsLeft();

private:
    const StandInDevices& devices() const { return m_home->devices; }
    bool isOnDevice(const std::string& path) const { return fs::exists(devices().media("a", path)); }
    /// Begins to delete what is in the first folder, and goes on once the tool has come to this command.
    void deleteUntil(const std::string& command) const;
    /// As at the end of the program, which waits for what still runs.
    void quit() const
    {
        m_home->work.reset();
        QVERIFY(hasEnded(devices().process("afcclient")));
    }

    std::unique_ptr<DeviceHome> m_home;
};

void DeviceWorkTest::init()
{
    m_home = std::make_unique<DeviceHome>();
    devices().connect("a", "Anna's iPhone");
    for (const char* path :
        { "100APPLE/IMG_1.HEIC", "100APPLE/IMG_2.MOV", "100APPLE/IMG_3.JPG", "101APPLE/IMG_4.HEIC" })
        devices().addMedia("a", path);
}

void DeviceWorkTest::cleanup()
{
    QCoreApplication::processEvents();
    QVERIFY2(m_home->sentinel.isUnchanged(), m_home->sentinel.difference().c_str());
    QVERIFY(isOnDevice("101APPLE/IMG_4.HEIC"));
    m_home.reset();
}

void DeviceWorkTest::deleteUntil(const std::string& command) const
{
    const auto listing = std::make_shared<const MediaListing>(IOSMediaManager(m_home->host()).listMedia("a"));
    devices().holdCommand(command);
    m_home->work->deleteMedia(listing->folders().front().files, "a", listing, m_home->host());
    QTRY_VERIFY(devices().isAtHeldCommand());
}

void DeviceWorkTest::quittingLetsADeletionComeToItsEnd()
{
    deleteUntil("rm /DCIM/100APPLE/IMG_2.MOV");
    QVERIFY(!isOnDevice("100APPLE/IMG_1.HEIC") && isOnDevice("100APPLE/IMG_2.MOV"));
    // Goes on when a tool that is not waited for would long have been ended.
    auto later = std::async(std::launch::async, [this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        devices().letCommandGo();
    });
    quit();
    QVERIFY(!isOnDevice("100APPLE/IMG_2.MOV") && !isOnDevice("100APPLE/IMG_3.JPG"));
    QVERIFY(devices().commands().ends_with("rm /DCIM/100APPLE/IMG_3.JPG\nquit\n"));
}

void DeviceWorkTest::quittingEndsADeletionThatHangs()
{
    m_home->work = std::make_shared<DeviceWork>(std::chrono::milliseconds(50));
    deleteUntil("rm /DCIM/100APPLE/IMG_2.MOV");
    quit();
    QVERIFY(!isOnDevice("100APPLE/IMG_1.HEIC") && isOnDevice("100APPLE/IMG_2.MOV"));
    QVERIFY(isOnDevice("100APPLE/IMG_3.JPG"));
}

void DeviceWorkTest::quittingDoesNotWaitToFindOutWhatIsLeft()
{
    m_home->work = std::make_shared<DeviceWork>(std::chrono::hours(1));
    deleteUntil("ls /DCIM/100APPLE");
    quit();
    QVERIFY(!isOnDevice("100APPLE/IMG_1.HEIC") && !isOnDevice("100APPLE/IMG_3.JPG"));
}

QTEST_GUILESS_MAIN(DeviceWorkTest)
#include "DeviceWorkTest.moc"
