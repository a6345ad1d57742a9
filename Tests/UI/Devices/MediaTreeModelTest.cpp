// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Devices/MediaTreeModel.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

#include <string>

using namespace Korvane;

/// The camera roll as rows, and what is ticked of it.
class MediaTreeModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void foldersOpenAndClose();
    void theOnlyFolderIsOpen();
    void ticksAFileAndItsFolder();
    void ticksAWholeFolderAndNothingElse();
    void anotherListingKeepsWhatIsStillThere();
    void tellsWhereRowsAreInAnotherListing();
    void whatIsGoneIsTickedNoMore();
    void whatIsListedTwiceIsOneFile();
    void positionsThatAreNotThereChangeNothing();
    void manyFilesAreTickedAtOnce();
    void hostileNamesAreRows();
    void aRowShowsWhetherItIsAVideo();
};

namespace {

/// A folder of so many files.
IOSMediaFolder folder(const std::string& name, int files)
{
    IOSMediaFolder made{ "/DCIM/" + name, name, {} };
    for (int i = 1; i <= files; ++i) {
        const std::string file = "IMG_" + std::to_string(i) + ".HEIC";
        made.files.push_back({ made.path + "/" + file, file });
    }
    return made;
}

std::shared_ptr<const MediaListing> listing(std::vector<IOSMediaFolder> folders)
{
    return std::make_shared<const MediaListing>(std::move(folders));
}

QStringList rows(const MediaTreeModel& model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.index(row).data(MediaTreeModel::NameRole).toString());
    return names;
}

int ticks(const MediaTreeModel& model, int row) { return model.index(row).data(MediaTreeModel::TicksRole).toInt(); }

std::vector<std::string> tickedPaths(const MediaTreeModel& model)
{
    std::vector<std::string> paths;
    for (const IOSMediaFile& file : model.selection().files(*model.listing()))
        paths.push_back(file.path);
    return paths;
}

} // namespace

void MediaTreeModelTest::foldersOpenAndClose()
{
    MediaTreeModel model;
    const QAbstractItemModelTester tester(&model);
    QCOMPARE(model.rowCount(), 0);
    model.setListing(listing({ folder("100APPLE", 2), folder("101APPLE", 3), folder("102APPLE", 1) }));
    const QStringList closed{ QStringLiteral("100APPLE"), QStringLiteral("101APPLE"), QStringLiteral("102APPLE") };
    QCOMPARE(rows(model), closed);
    QCOMPARE(model.index(1).data(MediaTreeModel::CountRole).toString(), QStringLiteral("3 files"));
    QCOMPARE(model.index(1).data(MediaTreeModel::SymbolRole).toString(), QStringLiteral("folder.fill"));
    model.setOpen(1, true);
    model.setOpen(1, true);
    model.setOpen(0, true);
    QCOMPARE(model.rowCount(), 8);
    QCOMPARE(model.rowOfFolder(1), 3);
    QCOMPARE(rows(model).mid(3, 4).join(QLatin1Char(' ')), QStringLiteral("101APPLE IMG_1.HEIC IMG_2.HEIC IMG_3.HEIC"));
    QCOMPARE(model.index(6).data(MediaTreeModel::FolderRole).toInt(), 1);
    QCOMPARE(model.index(6).data(MediaTreeModel::FileRole).toInt(), 2);
    QCOMPARE(model.index(7).data(MediaTreeModel::FileRole).toInt(), -1);
    QVERIFY(model.index(3).data(MediaTreeModel::OpenRole).toBool());
    model.setOpen(0, false);
    model.setOpen(1, false);
    QCOMPARE(rows(model), closed);
}

void MediaTreeModelTest::theOnlyFolderIsOpen()
{
    MediaTreeModel model;
    model.setListing(listing({ folder("100APPLE", 2) }));
    QCOMPARE(model.rowCount(), 3);
}

void MediaTreeModelTest::ticksAFileAndItsFolder()
{
    MediaTreeModel model;
    const QAbstractItemModelTester tester(&model);
    model.setListing(listing({ folder("100APPLE", 2), folder("101APPLE", 2) }));
    model.setOpen(1, true);
    QSignalSpy changes(&model, &MediaTreeModel::selectionChanged);
    model.toggleFile(1, 0);
    QCOMPARE(changes.count(), 1);
    QVERIFY(ticks(model, 0) == Qt::Unchecked && ticks(model, 1) == Qt::PartiallyChecked);
    QVERIFY(ticks(model, 2) == Qt::Checked && ticks(model, 3) == Qt::Unchecked);
    model.toggleFile(1, 1);
    QVERIFY(ticks(model, 1) == Qt::Checked && model.selection().count() == 2);
    model.toggleFile(1, 0);
    QVERIFY(ticks(model, 1) == Qt::PartiallyChecked && ticks(model, 2) == Qt::Unchecked);
    // Also where no row shows it.
    model.toggleFile(0, 1);
    const std::vector<std::string> expected{ "/DCIM/100APPLE/IMG_2.HEIC", "/DCIM/101APPLE/IMG_2.HEIC" };
    QCOMPARE(tickedPaths(model), expected);
}

void MediaTreeModelTest::ticksAWholeFolderAndNothingElse()
{
    MediaTreeModel model;
    const QAbstractItemModelTester tester(&model);
    model.setListing(listing({ folder("100APPLE", 2), folder("101APPLE", 3) }));
    model.toggleFile(1, 1);
    // What is ticked in part is ticked whole.
    model.toggleFolder(1);
    QVERIFY(ticks(model, 1) == Qt::Checked && ticks(model, 0) == Qt::Unchecked);
    QCOMPARE(model.selection().count(), std::size_t{ 3 });
    QCOMPARE(model.selection().count(1), std::size_t{ 3 });
    model.toggleFolder(1);
    QVERIFY(ticks(model, 1) == Qt::Unchecked && model.selection().count() == 0 && tickedPaths(model).empty());
}

void MediaTreeModelTest::anotherListingKeepsWhatIsStillThere()
{
    MediaTreeModel model;
    const QAbstractItemModelTester tester(&model);
    model.setListing(listing({ folder("100APPLE", 3), folder("101APPLE", 2) }));
    model.setOpen(1, true);
    model.toggleFile(0, 2);
    model.toggleFolder(1);
    model.setListing(listing({ folder("099APPLE", 1), folder("101APPLE", 1), folder("100APPLE", 3) }));
    const std::vector<std::string> expected{ "/DCIM/101APPLE/IMG_1.HEIC", "/DCIM/100APPLE/IMG_3.HEIC" };
    QCOMPARE(tickedPaths(model), expected);
    QCOMPARE(model.rowCount(), 4);
    QVERIFY(ticks(model, 0) == Qt::Unchecked && ticks(model, 1) == Qt::Checked);
    model.setListing(listing({}));
    QVERIFY(model.rowCount() == 0 && model.selection().count() == 0);
}

void MediaTreeModelTest::tellsWhereRowsAreInAnotherListing()
{
    MediaTreeModel model;
    QList<int> now;
    int former = 0;
    connect(&model, &MediaTreeModel::listingReplaced, &model, [&] {
        for (int row = -1; row <= former; ++row)
            now.append(model.rowNow(row));
    });
    const auto replace = [&](std::vector<IOSMediaFolder> folders) {
        now.clear();
        former = model.rowCount();
        model.setListing(listing(std::move(folders)));
        return now;
    };
    // There were no rows.
    QCOMPARE(replace({ folder("100APPLE", 2), folder("101APPLE", 3), folder("102APPLE", 1) }), (QList<int>{ -1, -1 }));
    model.setOpen(1, true);
    // 100APPLE, 101APPLE and its three files, 102APPLE, none behind it.
    IOSMediaFolder fewer = folder("101APPLE", 3);
    fewer.files.erase(fewer.files.begin() + 1);
    QCOMPARE(replace({ folder("099APPLE", 1), folder("101APPLE", 4), folder("102APPLE", 1), folder("100APPLE", 2) }),
        (QList<int>{ -1, 7, 1, 2, 3, 4, 6, -1 }));
    QCOMPARE(replace({ folder("099APPLE", 1), fewer }), (QList<int>{ -1, 0, 1, 2, 3, 3, 3, 3, 3, -1 }));
    QCOMPARE(replace({ folder("099APPLE", 1), folder("103APPLE", 1) }), (QList<int>{ -1, 0, 0, 0, 0, -1 }));
    QCOMPARE(replace({}), (QList<int>{ -1, -1, -1, -1 }));
    // Not told any more.
    QCOMPARE(model.rowNow(0), -1);
}

void MediaTreeModelTest::whatIsGoneIsTickedNoMore()
{
    MediaTreeModel model;
    model.setListing(listing({ folder("100APPLE", 3) }));
    model.toggleFolder(0);
    QSignalSpy changed(&model, &MediaTreeModel::selectionChanged);
    model.untick({ "/DCIM/100APPLE/IMG_1.HEIC", "/DCIM/100APPLE/IMG_3.HEIC", "/DCIM/100APPLE/IMG_9.HEIC" });
    QCOMPARE(changed.count(), 1);
    QCOMPARE(tickedPaths(model), std::vector<std::string>{ "/DCIM/100APPLE/IMG_2.HEIC" });
    // Another file that takes the name of one that was deleted is not ticked.
    model.setListing(listing({ folder("100APPLE", 3) }));
    QCOMPARE(tickedPaths(model), std::vector<std::string>{ "/DCIM/100APPLE/IMG_2.HEIC" });
}

void MediaTreeModelTest::whatIsListedTwiceIsOneFile()
{
    MediaTreeModel model;
    IOSMediaFolder repeated = folder("100APPLE", 2);
    repeated.files.push_back(repeated.files.front());
    model.setListing(listing({ repeated, folder("100APPLE", 2), folder("101APPLE", 1) }));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.index(0).data(MediaTreeModel::CountRole).toString(), QStringLiteral("2 files"));
    model.toggleFolder(0);
    QCOMPARE(model.selection().count(), std::size_t{ 2 });
}

void MediaTreeModelTest::positionsThatAreNotThereChangeNothing()
{
    MediaTreeModel model;
    model.setListing(listing({ folder("100APPLE", 2) }));
    QSignalSpy changes(&model, &MediaTreeModel::selectionChanged);
    for (const int place : { -1, 1, 1'000'000 }) {
        model.toggleFolder(place);
        model.toggleFile(place, 0);
        model.setOpen(place, true);
        QCOMPARE(model.rowOfFolder(place), -1);
    }
    model.toggleFile(0, -1);
    model.toggleFile(0, 2);
    QVERIFY(changes.isEmpty() && model.selection().count() == 0 && model.rowCount() == 3);
}

void MediaTreeModelTest::manyFilesAreTickedAtOnce()
{
    std::vector<IOSMediaFolder> folders;
    for (int i = 0; i < 200; ++i)
        folders.push_back(folder(std::to_string(100 + i) + "APPLE", 250));
    MediaTreeModel model;
    model.setListing(listing(std::move(folders)));
    for (int i = 0; i < 200; ++i)
        model.setOpen(i, true);
    QCOMPARE(model.rowCount(), 50'200);
    QSignalSpy rowChanges(&model, &MediaTreeModel::dataChanged);
    QSignalSpy changes(&model, &MediaTreeModel::selectionChanged);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 200; ++i)
        model.toggleFolder(i);
    const qint64 took = clock.elapsed();
    QCOMPARE(model.selection().count(), std::size_t{ 50'000 });
    QCOMPARE(tickedPaths(model).size(), std::size_t{ 50'000 });
    // One stretch for a folder, however many files it has.
    QCOMPARE(rowChanges.count(), 200);
    QCOMPARE(changes.count(), 200);
    QVERIFY2(took < 500, qPrintable(QString::number(took)));
}

void MediaTreeModelTest::hostileNamesAreRows()
{
    MediaTreeModel model;
    IOSMediaFolder hostile{ "/DCIM/\xff", "\xff", {} };
    hostile.files.push_back({ "/DCIM/\xff/\xe2\x80\xaegpj.exe", "\xe2\x80\xaegpj.exe" });
    model.setListing(listing({ hostile }));
    QCOMPARE(rows(model).front(), QString(QChar(0xfffd)));
    QCOMPARE(rows(model).back(), QStringLiteral("[U+202E]gpj.exe"));
    model.toggleFile(0, 0);
    // What is shown is not what is sent.
    QCOMPARE(tickedPaths(model).front(), std::string("/DCIM/\xff/\xe2\x80\xaegpj.exe"));
}

void MediaTreeModelTest::aRowShowsWhetherItIsAVideo()
{
    MediaTreeModel model;
    IOSMediaFolder mixed{ "/DCIM/100APPLE", "100APPLE", {} };
    for (const char* name : { "IMG_1.MOV", "IMG_2.HEIC", "IMG_3.mp4", "IMG_4.M4V", "IMG_5.JPG", "MOV" })
        mixed.files.push_back({ mixed.path + "/" + name, name });
    model.setListing(listing({ mixed }));
    QStringList symbols;
    for (int row = 0; row < model.rowCount(); ++row)
        symbols.append(model.index(row).data(MediaTreeModel::SymbolRole).toString());
    QCOMPARE(symbols.join(u' '),
        QStringLiteral("folder.fill video.fill photo.fill video.fill video.fill photo.fill photo.fill"));
}

QTEST_GUILESS_MAIN(MediaTreeModelTest)
#include "MediaTreeModelTest.moc"
