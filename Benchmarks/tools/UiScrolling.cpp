// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How long the main thread is held up while the real window shows very many sets of duplicates and the keyboard goes
/// through them: prints for each key the longest time that an event held it.
///
///     bench-ui-scrolling FOLDER [SETS]    the home is "home" in the folder; 50,000 sets of two unless told otherwise

#include "App/KorvaneApp.h"
#include "Benchmarks/tools/ListJourney.h"
#include "Platform/Host.h"

#include <QTimer>

#include <cstdlib>
#include <filesystem>
#include <string>

using namespace Korvane;

namespace {

/// Finds so many sets of two at once.
class SetsScanner final : public JunkScanner {
public:
    explicit SetsScanner(int sets)
        : m_sets(sets)
    {
    }

    std::vector<ScanItem> scan(const Host& host, const ProgressHandler&, const Cancellation&) const override
    {
        std::vector<ScanItem> items;
        for (int set = 0; set < m_sets; ++set) {
            const std::string name = "IMG_" + std::to_string(set) + ".JPG";
            const std::string label = name + " \u2014 2 copies, 1 MB each";
            const auto& home = host.environment.home;
            items.emplace_back(home / "Pictures/Holiday" / name, name + " (original)", label, 1'000'000, false);
            items.emplace_back(home / "Downloads/From the old laptop" / name, name, label, 1'000'000, true);
        }
        return items;
    }

private:
    int m_sets;
};

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 2) {
        std::fputs("usage: bench-ui-scrolling FOLDER [SETS]\n", stderr);
        return 2;
    }
    const int sets = argc > 2 ? std::atoi(argv[2]) : 50'000;
    const Environment environment = Environment::inFolder(std::filesystem::absolute(argv[1]));
    WatchedApplication application(argc, argv);
    KorvaneApp korvane(makeHost(environment));
    if (!korvane.start())
        return 1;
    ListJourney journey(korvane.mainWindow(), application,
        { { "End", Qt::Key_End, 1 }, { "Home", Qt::Key_Home, 1 }, { "PageDown", Qt::Key_PageDown, 40 },
            { "Down", Qt::Key_Down, 40 }, { "End", Qt::Key_End, 1 }, { "PageUp", Qt::Key_PageUp, 40 },
            { "Up", Qt::Key_Up, 40 }, { "Space", Qt::Key_Space, 4 }, { "Home", Qt::Key_Home, 1 } });
    QTimer::singleShot(1000, &application, [&] {
        korvane.state().setSelectedModule(CleanerModule::duplicates);
        auto* scan = korvane.mainWindow()->property("viewModel").value<ContentViewModel*>()->scan();
        application.restart();
        scan->start(std::make_shared<SetsScanner>(sets));
        QTimer::singleShot(3000, &application, [&] {
            application.report("showing");
            journey.begin();
        });
    });
    return WatchedApplication::exec();
}
