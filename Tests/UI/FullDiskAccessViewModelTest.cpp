// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/FullDiskAccessViewModel.h"
#include "Tests/Support/TestHost.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include <filesystem>

using namespace Korvane;
namespace fs = std::filesystem;

/// The access that the banner shows, on real folders. A file in the place of a protected folder exists and cannot be
/// listed, whoever runs the test.
class FullDiskAccessViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isGrantedWhereNothingIsProtected();
    void isGrantedWhenOneFolderCanBeListed();
    void isMissingWhenNoneCanBeListed();
    void noticesWhenTheApplicationBecomesActive();
    void opensTheSettingsPane();
};

namespace {

const fs::path safari = "home/Library/Safari";
const fs::path tcc = "home/Library/Application Support/com.apple.TCC";

} // namespace

void FullDiskAccessViewModelTest::isGrantedWhereNothingIsProtected()
{
    const TemporaryFolder folder;
    QVERIFY(FullDiskAccessViewModel(makeTestHost(folder).host).isGranted());
}

void FullDiskAccessViewModelTest::isGrantedWhenOneFolderCanBeListed()
{
    const TemporaryFolder folder;
    writeFile(folder / safari, "");
    fs::create_directories(folder / tcc);
    QVERIFY(FullDiskAccessViewModel(makeTestHost(folder).host).isGranted());
}

void FullDiskAccessViewModelTest::isMissingWhenNoneCanBeListed()
{
    const TemporaryFolder folder;
    writeFile(folder / safari, "");
    writeFile(folder / tcc, "");
    QVERIFY(!FullDiskAccessViewModel(makeTestHost(folder).host).isGranted());
}

void FullDiskAccessViewModelTest::noticesWhenTheApplicationBecomesActive()
{
    const TemporaryFolder folder;
    writeFile(folder / safari, "");
    FullDiskAccessViewModel access(makeTestHost(folder).host);
    QSignalSpy changed(&access, &FullDiskAccessViewModel::grantedChanged);
    QVERIFY(!access.isGranted());
    fs::remove(folder / safari);
    fs::create_directories(folder / safari);
    QVERIFY(!access.isGranted());
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    QVERIFY(access.isGranted());
    QCOMPARE(changed.count(), 1);
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(changed.count(), 1);
}

void FullDiskAccessViewModelTest::opensTheSettingsPane()
{
    const TemporaryFolder folder;
    const TestHost test = makeTestHost(folder);
    FullDiskAccessViewModel(test.host).openSettings();
    QCOMPARE(test.workspace->openedUrls().size(), std::size_t{ 1 });
    QCOMPARE(QString::fromStdString(test.workspace->openedUrls().front()),
        QStringLiteral("x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles"));
}

QTEST_MAIN(FullDiskAccessViewModelTest)
#include "FullDiskAccessViewModelTest.moc"
