// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/FileSizeCalculator.h"
#include "Core/Scanning/FormattedBytes.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestHost.h"
#include "Tests/Support/TestTrash.h"
#include "Tests/UI/Scan/GatedFileManager.h"
#include "Tests/UI/Scan/PlainNavigation.h"
#include "Tests/UI/Scan/ScriptedScanner.h"
#include "UI/Background.h"
#include "UI/PreferenceKeys.h"
#include "UI/ScanViewModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSignalSpy>
#include <QThreadPool>
#include <QtTest>

using namespace Korvane;
using Phase = ScanViewModel::Phase;

/// What cleaning does to real files and a real Trash.
class ScanCleaningTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void asksFirstByDefault();
    void withoutConfirmationMovesToTheTrashAtOnce();
    void withoutConfirmationDeletesAtOnceIfPreferred();
    void recordsThisRunAndNotATotal();
    void recordsTheBytesBeforeTheDate();
    void showsBothLinesWhenSomeItemsFail();
    void showsOneLineWhenNoneFails();
    void cleansOnlyWhatIsTickedInTheOrderOfTheScan();
    void doesNothingUnlessFindingsAreShown();
    void aCleaningOutlivesItsScreenAndIsRecorded();
    void aScanBegunMeanwhileIsNotOverwritten();
    void copiesAPathByteForByte();

private:
    std::filesystem::path trashed(const char* path) const { return testTrash(m_host->host.environment) / path; }
    ScanItem cache(const std::string& name, bool selectable = true);
    void scan(std::vector<ScanItem> items);
    void setBool(std::string_view key, bool value) { QVERIFY(m_host->host.defaults->setBool(key, value)); }

    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<Sentinel> m_sentinel;
    std::unique_ptr<PlainNavigation> m_navigation;
    std::unique_ptr<ScanViewModel> m_model;
};

void ScanCleaningTest::init()
{
    m_folder = std::make_unique<TemporaryFolder>();
    m_host = std::make_unique<TestHost>(makeTestHost(*m_folder));
    m_sentinel = std::make_unique<Sentinel>(m_host->host.environment.home / "Documents/letter.txt");
    m_navigation = std::make_unique<PlainNavigation>();
    m_model = std::make_unique<ScanViewModel>(CleanerModule::systemJunk, m_host->host, *m_navigation);
}

void ScanCleaningTest::cleanup()
{
    m_model.reset();
    backgroundThreads().waitForDone();
    QCoreApplication::processEvents();
    QVERIFY2(m_sentinel->isUnchanged(), m_sentinel->difference().c_str());
    m_sentinel.reset();
    m_navigation.reset();
    m_host.reset();
    m_folder.reset();
}

ScanItem ScanCleaningTest::cache(const std::string& name, bool selectable)
{
    const std::filesystem::path folder = m_host->host.environment.home / "Library/Caches" / name;
    writeFile(folder / "data", std::size_t{ 50'000 });
    return { folder, std::nullopt, "User Caches", FileSizeCalculator::totalSize(folder), selectable };
}

void ScanCleaningTest::scan(std::vector<ScanItem> items)
{
    m_model->start(ScriptedScanner::finding(std::move(items)));
    QTRY_COMPARE(m_model->phase(), Phase::Results);
}

void ScanCleaningTest::asksFirstByDefault()
{
    const ScanItem item = cache("one");
    scan({ item });
    QSignalSpy asked(m_model.get(), &ScanViewModel::confirmationRequested);
    m_model->requestClean();
    QCOMPARE(asked.count(), 1);
    QCOMPARE(m_model->phase(), Phase::Results);
    QVERIFY(std::filesystem::exists(item.url));
}

void ScanCleaningTest::withoutConfirmationMovesToTheTrashAtOnce()
{
    setBool(PreferenceKeys::confirmBeforeCleaning, false);
    const ScanItem item = cache("one");
    scan({ item });
    QSignalSpy asked(m_model.get(), &ScanViewModel::confirmationRequested);
    m_model->requestClean();
    QCOMPARE(m_model->phase(), Phase::Cleaning);
    QTRY_COMPARE(m_model->phase(), Phase::Cleaned);
    QCOMPARE(asked.count(), 0);
    QVERIFY(!std::filesystem::exists(item.url));
    QVERIFY(std::filesystem::exists(trashed("one/data")));
    QVERIFY(isInTestTrash(m_host->host.environment, "one"));
}

void ScanCleaningTest::withoutConfirmationDeletesAtOnceIfPreferred()
{
    setBool(PreferenceKeys::confirmBeforeCleaning, false);
    setBool(PreferenceKeys::moveToTrashInsteadOfDelete, false);
    const ScanItem item = cache("one");
    scan({ item });
    m_model->requestClean();
    QTRY_COMPARE(m_model->phase(), Phase::Cleaned);
    QVERIFY(!std::filesystem::exists(item.url));
    QVERIFY(!std::filesystem::exists(trashed("one")));
}

void ScanCleaningTest::recordsThisRunAndNotATotal()
{
    const UserDefaults& defaults = *m_host->host.defaults;
    QCOMPARE(defaults.doubleForKey(PreferenceKeys::lastCleanedDate, 0.0), 0.0);
    for (const char* name : { "one", "two" }) {
        const ScanItem item = cache(name);
        scan({ item });
        const double before = static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000 - 0.001;
        m_model->clean(true);
        QTRY_COMPARE(m_model->phase(), Phase::Cleaned);
        const double after = static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000 + 0.001;
        QCOMPARE(m_model->result().cleanedBytes, item.sizeInBytes);
        QCOMPARE(defaults.integerForKey(PreferenceKeys::lastCleanedBytes, 0), item.sizeInBytes);
        const double date = defaults.doubleForKey(PreferenceKeys::lastCleanedDate, 0.0);
        QVERIFY(date >= before && date <= after);
    }
}

void ScanCleaningTest::recordsTheBytesBeforeTheDate()
{
    std::vector<std::string> keys;
    const auto observation = m_host->host.defaults->observe([&keys](std::string_view key) { keys.emplace_back(key); });
    scan({ cache("one") });
    m_model->clean(false);
    QTRY_COMPARE(keys.size(), 2U);
    QCOMPARE(keys, (std::vector<std::string>{ "lastCleanedBytes", "lastCleanedDate" }));
}

void ScanCleaningTest::showsBothLinesWhenSomeItemsFail()
{
    const ScanItem gone = cache("gone");
    const ScanItem here = cache("here");
    scan({ gone, here });
    std::filesystem::remove_all(gone.url);
    m_model->clean(true);
    QTRY_COMPARE(m_model->phase(), Phase::Cleaned);
    const CleanedTexts texts = m_model->cleanedTexts();
    QCOMPARE(texts.heading, QString::fromStdString(formattedBytes(here.sizeInBytes)) + " cleaned");
    QCOMPARE(texts.countLine, "1 items moved to Trash or removed");
    QCOMPARE(texts.failuresLine, "1 items could not be removed");

    QCOMPARE(m_model->failures()->rowCount(), 1);
    const QModelIndex failure = m_model->failures()->index(0);
    QCOMPARE(failure.data(CleanFailuresModel::PathRole).toString().toStdString(), gone.url.string());
    QCOMPARE(failure.data(CleanFailuresModel::MessageRole).toString().toStdString(),
        m_model->result().failures.front().message);
    QVERIFY(!m_model->result().failures.front().message.empty());
}

void ScanCleaningTest::showsOneLineWhenNoneFails()
{
    const ScanItem item = cache("one");
    scan({ item });
    m_model->clean(true);
    QTRY_COMPARE(m_model->phase(), Phase::Cleaned);
    QCOMPARE(m_model->cleanedTexts().countLine, "1 items moved to Trash or removed");
    QCOMPARE(m_model->cleanedTexts().failuresLine, "");
    QCOMPARE(m_model->failures()->rowCount(), 0);
}

void ScanCleaningTest::cleansOnlyWhatIsTickedInTheOrderOfTheScan()
{
    const std::vector<ScanItem> items{ cache("a"), cache("b", false), cache("c"), cache("d") };
    scan(items);
    m_model->rows()->setTicked(items[1].id, true);
    m_model->rows()->setTicked(items[2].id, false);
    std::filesystem::remove_all(items[0].url);
    std::filesystem::remove_all(items[1].url);
    m_model->clean(true);
    QTRY_COMPARE(m_model->phase(), Phase::Cleaned);
    QCOMPARE(m_model->result().cleanedCount, 1);
    QCOMPARE(m_model->result().failures.size(), 2U);
    QCOMPARE(m_model->result().failures[0].url, items[0].url);
    QCOMPARE(m_model->result().failures[1].url, items[1].url);
    QVERIFY(std::filesystem::exists(items[2].url));
    QVERIFY(!std::filesystem::exists(items[3].url));
}

void ScanCleaningTest::doesNothingUnlessFindingsAreShown()
{
    m_model->clean(true);
    QCOMPARE(m_model->phase(), Phase::Idle);
    scan({ cache("one") });
    m_model->clean(true);
    m_model->clean(true);
    QTRY_COMPARE(m_model->phase(), Phase::Cleaned);
    m_model->clean(true);
    QCOMPARE(m_model->phase(), Phase::Cleaned);
    QCOMPARE(m_model->result().cleanedCount, 1);
    QVERIFY(m_model->result().failures.empty());
}

void ScanCleaningTest::aCleaningOutlivesItsScreenAndIsRecorded()
{
    const auto gated = std::make_shared<GatedFileManager>(m_host->host.files);
    Host host = m_host->host;
    host.files = gated;
    m_model = std::make_unique<ScanViewModel>(CleanerModule::systemJunk, host, *m_navigation);
    const std::vector<ScanItem> items{ cache("one"), cache("two") };
    scan(items);
    m_model->clean(true);
    gated->arrived.acquire();
    m_model.reset();
    gated->gate.release(2);
    const std::int64_t bytes = items[0].sizeInBytes + items[1].sizeInBytes;
    QTRY_COMPARE(m_host->host.defaults->integerForKey(PreferenceKeys::lastCleanedBytes, 0), bytes);
    QVERIFY(std::filesystem::exists(trashed("one/data")));
    QVERIFY(std::filesystem::exists(trashed("two/data")));
}

void ScanCleaningTest::aScanBegunMeanwhileIsNotOverwritten()
{
    const auto gated = std::make_shared<GatedFileManager>(m_host->host.files);
    Host host = m_host->host;
    host.files = gated;
    m_model = std::make_unique<ScanViewModel>(CleanerModule::systemJunk, host, *m_navigation);
    const ScanItem item = cache("one");
    scan({ item });
    m_model->clean(true);
    gated->arrived.acquire();
    scan({ cache("two") });
    gated->gate.release();
    QTRY_COMPARE(m_host->host.defaults->integerForKey(PreferenceKeys::lastCleanedBytes, 0), item.sizeInBytes);
    QCOMPARE(m_model->phase(), Phase::Results);
    QCOMPARE(m_model->items().front().displayName, "two");
}

void ScanCleaningTest::copiesAPathByteForByte()
{
    scan({ { "/somewhere/plain name", std::nullopt, "x", 1, true },
        { "/somewhere/caf\xe9 %", std::nullopt, "x", 1, true } });
    m_model->actions()->copyPath(m_model->rows()->index(0).data(ScanResultsModel::ItemIdRole).toString());
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(copied->data("text/uri-list"), QByteArray("file:///somewhere/plain%20name\r\n"));
    QCOMPARE(copied->text(), "/somewhere/plain name");

    m_model->actions()->copyPath(m_model->rows()->index(1).data(ScanResultsModel::ItemIdRole).toString());
    copied = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(copied->data("text/uri-list"), QByteArray("file:///somewhere/caf%E9%20%25\r\n"));
    QCOMPARE(copied->text(), "file:///somewhere/caf%E9%20%25");
}

QTEST_MAIN(ScanCleaningTest)
#include "ScanCleaningTest.moc"
