// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Devices/DeviceHome.h"
#include "UI/IOSMediaViewModel.h"

#include <QtTest>

using namespace Korvane;
namespace fs = std::filesystem;

/// Two photos "IMG_1.JPG" on one device, in two folders: what is done with one is not done with the other.
class MediaOfOneNameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void bothAreTickedExportedAndDeleted();
    void oneIsExported();
    void oneIsDeleted();

private:
    const StandInDevices& devices() const { return m_home->devices; }
    bool isTicked(int row) const
    {
        return m_model->rows()->index(row).data(MediaTreeModel::TicksRole).toInt() == Qt::Checked;
    }
    QString status() const { return m_model->shownStatusMessage(); }
    bool isOnDevice(const std::string& path) const { return fs::exists(devices().media("a", path)); }
    std::string exported() const { return readFile(m_home->host().environment.downloads() / "IMG_1.JPG"); }

    std::unique_ptr<DeviceHome> m_home;
    std::unique_ptr<IOSMediaViewModel> m_model;
};

void MediaOfOneNameTest::init()
{
    m_home = std::make_unique<DeviceHome>();
    devices().connect("a", "Anna's iPhone");
    for (const char* path : { "100APPLE/IMG_1.JPG", "101APPLE/IMG_1.JPG", "101APPLE/IMG_2.JPG" })
        devices().addMedia("a", path);
    fs::create_directories(m_home->home() / "Downloads");
    m_model = std::make_unique<IOSMediaViewModel>(
        IOSDevice{ "a", "Anna's iPhone", "17", 0, 0 }, m_home->host(), m_home->work);
    m_model->load();
    QTRY_VERIFY(m_model->phase() == IOSMediaViewModel::Phase::Loaded);
}

void MediaOfOneNameTest::cleanup()
{
    m_model.reset();
    m_home->work.reset();
    QCoreApplication::processEvents();
    QVERIFY2(m_home->sentinel.isUnchanged(), m_home->sentinel.difference().c_str());
    m_home.reset();
}

void MediaOfOneNameTest::bothAreTickedExportedAndDeleted()
{
    m_model->rows()->setOpen(0, true);
    m_model->rows()->setOpen(1, true);
    m_model->rows()->toggleFile(1, 0);
    QVERIFY(!isTicked(1) && isTicked(3) && !isTicked(4));
    m_model->rows()->toggleFile(0, 0);
    QCOMPARE(m_model->selectionText(), QStringLiteral("2 files selected"));
    m_model->exportSelected();
    QTRY_VERIFY(!m_model->isWorking());
    // Both go to one name: the first is there, whole, and that the second is not is said.
    QCOMPARE(status(), QStringLiteral("Exported 1 files, 1 failed."));
    QCOMPARE(exported(), std::string("100APPLE/IMG_1.JPG"));
    m_model->deleteSelected();
    QTRY_COMPARE(status(), QStringLiteral("Deleted 2 files."));
    QVERIFY(!isOnDevice("100APPLE/IMG_1.JPG") && !isOnDevice("101APPLE/IMG_1.JPG"));
    QVERIFY(isOnDevice("101APPLE/IMG_2.JPG"));
}

void MediaOfOneNameTest::oneIsExported()
{
    m_model->rows()->toggleFile(1, 0);
    m_model->exportSelected();
    QTRY_COMPARE(status(), QStringLiteral("Exported 1 files to Downloads."));
    QCOMPARE(exported(), std::string("101APPLE/IMG_1.JPG"));
}

void MediaOfOneNameTest::oneIsDeleted()
{
    m_model->rows()->toggleFile(1, 0);
    m_model->deleteSelected();
    QTRY_COMPARE(status(), QStringLiteral("Deleted 1 files."));
    QTRY_VERIFY(m_model->phase() == IOSMediaViewModel::Phase::Loaded);
    QVERIFY(isOnDevice("100APPLE/IMG_1.JPG") && !isOnDevice("101APPLE/IMG_1.JPG"));
    // The other has no tick, whoever had the name.
    QCOMPARE(m_model->selectionText(), QStringLiteral("0 files selected"));
}

QTEST_GUILESS_MAIN(MediaOfOneNameTest)
#include "MediaOfOneNameTest.moc"
