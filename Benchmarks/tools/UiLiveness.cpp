// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How long the main thread is held up while the real window scans a home: prints the longest and the total time
/// of one event, by the clock on the wall and by the thread's own processor time.
///
///     bench-ui-liveness FOLDER    "home" in the folder is scanned; it is filled with 40,000 caches of 12 files if
///     missing

#include "App/KorvaneApp.h"
#include "Benchmarks/tools/WatchedApplication.h"
#include "Platform/Host.h"

#include <QQuickWindow>
#include <QTimer>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using namespace Korvane;

namespace {

void makeHome(const fs::path& home)
{
    const fs::path caches = home / "Library/Caches";
    if (fs::exists(caches))
        return;
    for (int cache = 0; cache < 40'000; ++cache) {
        const fs::path folder = caches / ("org.example.cache" + std::to_string(cache));
        fs::create_directories(folder);
        for (int file = 0; file < 12; ++file)
            std::ofstream(folder / std::to_string(file)) << file;
    }
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fputs("usage: bench-ui-liveness FOLDER\n", stderr);
        return 2;
    }
    const Environment environment = Environment::inFolder(fs::absolute(argv[1]));
    makeHome(environment.home);
    WatchedApplication application(argc, argv);
    const Host host = makeHost(environment);
    KorvaneApp korvane(host);
    if (!korvane.start())
        return 1;
    auto* content = korvane.mainWindow()->property("viewModel").value<ContentViewModel*>();
    QTimer::singleShot(2000, &application, [&] {
        korvane.state().requestScan(CleanerModule::systemJunk);
        application.restart();
        QObject::connect(content->scan(), &ScanViewModel::phaseChanged, &application, [&] {
            application.report("scanning");
            std::printf("%zu items\n", content->scan()->items().size());
            application.restart();
            QTimer::singleShot(1000, &application, [&] {
                application.report("results");
                application.restart();
                content->scan()->toggleSelectAll();
                QTimer::singleShot(1000, &application, [&] {
                    application.report("ticking");
                    QCoreApplication::quit();
                });
            });
        });
    });
    return WatchedApplication::exec();
}
