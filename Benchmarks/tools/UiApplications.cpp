// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How long the main thread is held up while the real window scans the applications of a home, and the keyboard and the
/// wheel go through them, their icons and their leftovers: prints for each step the longest time that an event held it.
///
///     bench-ui-applications FOLDER    the home is "home" in the folder, as scripts/demo-home --applications makes it

#include "App/KorvaneApp.h"
#include "Benchmarks/tools/ListJourney.h"
#include "Platform/Host.h"

#include <QTimer>

#include <cstdio>
#include <filesystem>

using namespace Korvane;

int main(int argc, char* argv[])
{
    if (argc < 2) {
        std::fputs("usage: bench-ui-applications FOLDER\n", stderr);
        return 2;
    }
    const Environment environment = Environment::inFolder(std::filesystem::absolute(argv[1]));
    WatchedApplication application(argc, argv);
    KorvaneApp korvane(makeHost(environment));
    if (!korvane.start())
        return 1;
    ListJourney journey(korvane.mainWindow(), application,
        { { "Wheel", Qt::Key(0), 100 }, { "End", Qt::Key_End, 1 }, { "Home", Qt::Key_Home, 1 },
            { "PageDown", Qt::Key_PageDown, 40 }, { "Down", Qt::Key_Down, 40 }, { "PageUp", Qt::Key_PageUp, 40 },
            { "Up", Qt::Key_Up, 40 }, { "Typing", Qt::Key_E, 1, "e" } });
    QTimer::singleShot(1000, &application, [&] {
        korvane.state().setSelectedModule(CleanerModule::uninstaller);
        auto* uninstaller = korvane.mainWindow()->property("viewModel").value<ContentViewModel*>()->uninstaller();
        application.restart();
        QObject::connect(uninstaller, &UninstallerViewModel::phaseChanged, &application, [&, uninstaller] {
            if (uninstaller->phase() != UninstallerViewModel::Phase::Loaded)
                return;
            QTimer::singleShot(2000, &application, [&, uninstaller] {
                application.report("scanning");
                std::printf("%-10s %zu applications\n", "", uninstaller->apps().size());
                journey.begin();
            });
        });
        uninstaller->scan();
    });
    return WatchedApplication::exec();
}
