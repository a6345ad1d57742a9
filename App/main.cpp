// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The composition root: builds everything once, top to bottom, and runs it.
///
/// The source tree, from the ground up; each folder knows only those above it in this list:
///
///   Platform/          what the machine gives: files, walks, Trash, preferences, running applications, formats
///   Core/              the rules, without Qt: Modules, FullDiskAccess
///     Scanning/          what is found: the scan model and the scanners
///     Cleaning/          how it is removed
///     Uninstalling/      the applications, what they leave behind, and how both are removed
///     Devices/           iPhones and iPads by their tools, camera rolls, backups
///     Maintenance/       the tasks for the whole machine; what starts by itself, and how it is removed
///   UI/                the screens, each a QML file and the view model that bears its name; Theme
///     Content/           the parts of the main window
///     Controls/          the look of a button, a switch, a card
///     Dashboard/         the parts of the home screen
///     Devices/           the parts of the screen of devices
///     Maintenance/       the parts of the maintenance screen
///     MenuBar/           the parts of the panel in the menu bar
///     Scan/              the parts of the scan screen
///     Settings/          the parts of the settings window
///     Symbols/           one family of drawings, and what tints them
///     Uninstaller/       the parts of the uninstaller's screen; the icons of applications
///   Translations/      the texts of the program in other languages
///   CLI/               the same engine for a terminal
///   App/               this file; KorvaneApp with its windows, AppState, Languages, TrayIcon with its panel, menus,
///   SingleInstance

#include "App/KorvaneApp.h"
#include "App/Languages.h"
#include "App/SingleInstance.h"
#include "App/TerminationSignals.h"
#include "Platform/CloudFiles.h"
#include "Platform/Environment.h"
#include "Platform/Host.h"
#include "UI/Appearance.h"
#include "UI/Background.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QQuickWindow>

#include <cstdio>
#include <memory>
#include <utility>

namespace {

/// What tells the desktops of one user apart.
QByteArray desktopSession()
{
    return QGuiApplication::platformName().toUtf8() + '\0' + qgetenv("WAYLAND_DISPLAY") + '\0' + qgetenv("DISPLAY");
}

/// Tells the one who started this that the one that runs already is stuck.
void tellOfSilence()
{
    const QString text = QCoreApplication::translate("main", "Korvane is already running, but it does not answer.");
    std::fprintf(stderr, "korvane: %s\n", text.toUtf8().constData());
    QMessageBox box(QMessageBox::Warning, QCoreApplication::translate("main", "Korvane"), text);
    box.setInformativeText(QCoreApplication::translate(
        "main", "Wait until it has finished what it is doing, or end it, and open Korvane again."));
    box.open();
    QApplication::exec();
}

/// Runs until the user quits; the status of the program.
int run(const Korvane::Host& host, std::unique_ptr<Korvane::SingleInstance> instance)
{
    Korvane::KorvaneApp korvane(host);
    QObject::connect(
        instance.get(), &Korvane::SingleInstance::shownAgain, &korvane, &Korvane::KorvaneApp::openMainWindowWith);
    const int status = korvane.start() ? QApplication::exec() : EXIT_FAILURE;
    // Whoever starts it from now on need not wait for what this one still finishes.
    instance.reset();
    return status;
}

} // namespace

int main(int argc, char* argv[])
{
    Korvane::leaveCloudFilesInTheCloud();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Korvane"));
    QApplication::setApplicationDisplayName(QStringLiteral("Korvane"));
    QApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.korvane.Korvane"));
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    Korvane::Appearance::applyFont();
    const Korvane::Languages languages(QLocale::system().uiLanguages());
    const Korvane::TerminationSignals terminationSignals;

    const Korvane::Host host = Korvane::makeHost(Korvane::Environment::current());
    auto instance = std::make_unique<Korvane::SingleInstance>(
        host.environment, qgetenv("XDG_RUNTIME_DIR").toStdString(), desktopSession());
    switch (instance->claim(qgetenv("XDG_ACTIVATION_TOKEN"))) {
    case Korvane::SingleInstance::Outcome::First:
        break;
    case Korvane::SingleInstance::Outcome::Shown:
        return EXIT_SUCCESS;
    case Korvane::SingleInstance::Outcome::Silent:
        tellOfSilence();
        return EXIT_FAILURE;
    }
    const int status = run(host, std::move(instance));
    // A cleaning that was begun is finished and recorded, although its window is gone.
    Korvane::finishBackgroundWork();
    return status;
}
