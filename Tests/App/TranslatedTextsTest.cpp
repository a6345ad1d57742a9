// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/Languages.h"
#include "Core/Modules.h"
#include "Core/Scanning/JunkLocation.h"
#include "Core/Scanning/LargeFilesScanner.h"
#include "Platform/Localized.h"
#include "Tests/App/UntranslatedTexts.h"
#include "Tests/Support/TestHost.h"
#include "UI/Devices/DeviceTexts.h"
#include "UI/Maintenance/MaintenanceTexts.h"
#include "UI/ModuleViewModel.h"
#include "UI/Scan/CategoryTitle.h"
#include "UI/Scan/CleanedTexts.h"
#include "UI/Scan/ScanConfirmation.h"
#include "UI/Scan/ScanProgressTexts.h"
#include "UI/Uninstaller/InstalledAppTexts.h"

#include <QTest>

#include <chrono>
#include <memory>
#include <set>

using namespace Korvane;

/// Every text that is only named when the program runs, asked for as the screens ask for it: in every language there
/// is one. The texts that stand in the sources themselves are held to the catalogues by CataloguesTest.
class TranslatedTextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

    void hearsOfAMisspelledText();
    void theModules();
    void theCategories();
    void theMaintenanceTasks();
    void theDomainsOfAgents();
    void theQuestionsBeforeACleaning();
    void whatACleaningSays();
    void theApplications();
    void theDevices();

private:
    std::unique_ptr<UntranslatedTexts> m_untranslated;
    std::unique_ptr<Languages> m_languages;
};

namespace {

/// The headings of all that the scanners find, as the rules name them.
std::set<std::string> categories()
{
    const TemporaryFolder folder;
    const TestHost test = makeTestHost(folder);
    writeFile(test.host.environment.home / "large", std::size_t{ 10'000 });
    std::set<std::string> names;
    for (const JunkLocation& location : junkLocations(test.host))
        names.insert(std::string(location.category));
    for (const ScanItem& item : LargeFilesScanner(1).scan(
             test.host, [](const ScanProgress&) {}, Cancellation()))
        names.insert(item.category);
    return names;
}

InstalledApp app(InstalledApp::Kind kind, std::optional<std::string> bundleID, std::vector<ScanItem> leftovers)
{
    return { "/Applications/Some.app", "Some", std::move(bundleID), 2'000'000, std::move(leftovers), kind };
}

} // namespace

void TranslatedTextsTest::initTestCase_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = Languages::available();
    QVERIFY(languages.contains(QStringLiteral("zh_CN")));
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void TranslatedTextsTest::init()
{
    QFETCH_GLOBAL(const QString, language);
    m_untranslated = std::make_unique<UntranslatedTexts>();
    m_languages = std::make_unique<Languages>(QStringList(language));
    QCOMPARE(m_languages->name(), language);
    m_untranslated->take();
}

void TranslatedTextsTest::cleanup()
{
    const QStringList untranslated = m_untranslated->take();
    m_languages.reset();
    m_untranslated.reset();
    QVERIFY2(untranslated.isEmpty(), qPrintable(untranslated.join(QLatin1Char('\n'))));
}

void TranslatedTextsTest::hearsOfAMisspelledText()
{
    QCOMPARE(categoryTitle("Trahs"), QStringLiteral("Trahs"));
    QCOMPARE(localized("Errors", "Unknown eror"), std::string("Unknown eror"));
    QCOMPARE(m_untranslated->take(),
        QStringList({ QStringLiteral("Categories: Trahs"), QStringLiteral("Errors: Unknown eror") }));
}

void TranslatedTextsTest::theModules()
{
    for (const CleanerModule module : allCleanerModules) {
        const ModuleViewModel viewModel(module);
        QVERIFY(!viewModel.title().isEmpty());
        QVERIFY(!viewModel.subtitle().isEmpty());
    }
}

void TranslatedTextsTest::theCategories()
{
    const std::set<std::string> names = categories();
    for (const char* expected : { "User Caches", "Log Files", "Xcode Junk", "Temporary Files", "Trash", "Large Files" })
        QVERIFY2(names.count(expected) == 1, expected);
    for (const std::string& name : names)
        QVERIFY(!categoryTitle(name).isEmpty());
}

void TranslatedTextsTest::theMaintenanceTasks()
{
    for (const MaintenanceTask task : allMaintenanceTasks) {
        QVERIFY(!MaintenanceTexts::title(task).isEmpty());
        QVERIFY(!MaintenanceTexts::subtitle(task).isEmpty());
    }
}

void TranslatedTextsTest::theDomainsOfAgents()
{
    using Domain = LaunchAgent::Domain;
    for (const Domain domain : { Domain::User, Domain::SystemAgents, Domain::SystemDaemons })
        QVERIFY(!MaintenanceTexts::domain(domain).isEmpty());
}

void TranslatedTextsTest::theQuestionsBeforeACleaning()
{
    for (const bool movesToTrash : { true, false }) {
        const ScanConfirmation confirmation = ScanConfirmation::of(2'000'000, movesToTrash);
        QVERIFY(!confirmation.text.isEmpty());
        QVERIFY(!confirmation.consent.isEmpty());
    }
}

void TranslatedTextsTest::whatACleaningSays()
{
    for (const std::int64_t count : { 1, 2 }) {
        const std::vector<Cleaner::Failure> failures(
            static_cast<std::size_t>(count), { "/nowhere", localized("Errors", "Unknown error") });
        QVERIFY(!CleanedTexts::of({ 2'000'000, count, failures }).failuresLine.isEmpty());
        QVERIFY(!ScanProgressTexts::of({ "/nowhere", count, 2'000'000 }).foundText.isEmpty());
    }
}

void TranslatedTextsTest::theApplications()
{
    const ScanItem leftover("/left/a", std::nullopt, "Caches", 1, true);
    for (const auto kind : { InstalledApp::Kind::Bundle, InstalledApp::Kind::AppImage, InstalledApp::Kind::Flatpak }) {
        QVERIFY(!InstalledAppTexts::of(app(kind, "org.example.Some", { leftover })).consent.isEmpty());
        QVERIFY(!InstalledAppTexts::of(app(kind, "org.example.Some", {})).withoutLeftovers.isEmpty());
        QVERIFY(!InstalledAppTexts::of(app(kind, std::nullopt, {})).withoutLeftovers.isEmpty());
    }
}

void TranslatedTextsTest::theDevices()
{
    const IOSBackup::Date day(std::chrono::hours(24) * 365);
    QVERIFY(!DeviceTexts::detail({ "/backups/one", "Anna", "17.4.1", day, 1 }).isEmpty());
    QVERIFY(!DeviceTexts::storage({ "00008110", "Anna", "17.4.1", 128'000'000'000, 28'000'000'000 }).isEmpty());
    for (const std::size_t count : { 1, 2 })
        QVERIFY(!DeviceTexts::files(count).isEmpty());
}

QTEST_MAIN(TranslatedTextsTest)
#include "TranslatedTextsTest.moc"
