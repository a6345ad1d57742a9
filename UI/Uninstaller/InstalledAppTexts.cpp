// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/InstalledAppTexts.h"

#include "Core/Scanning/FormattedBytes.h"
#include "Core/Uninstalling/LeftoverPlaces.h"
#include "Platform/DisplayText.h"
#include "UI/FilledText.h"
#include "UI/ShortenedText.h"
#include "UI/Uninstaller/ApplicationIconProvider.h"

namespace Korvane {

namespace {

/// In UTF-16 code units: more than any name has, and little enough that a dialog with it stays in the window.
constexpr qsizetype longestName = 160;

QString whyWithoutLeftovers(const InstalledApp& app)
{
    if (!app.leftovers.empty())
        return {};
    return app.bundleID && isFileName(*app.bundleID)
        ? InstalledAppTexts::tr("No leftover files were found.")
        : InstalledAppTexts::tr("Without a usable identifier, no leftover files can be told to be this app\u2019s.");
}

} // namespace

InstalledAppTexts InstalledAppTexts::of(const InstalledApp& app)
{
    const int leftovers = static_cast<int>(app.leftovers.size());
    InstalledAppTexts texts;
    texts.name = shortened(std::string_view(app.name), longestName, Cut::Middle);
    texts.path = QString::fromStdString(displayText(app.url));
    texts.identifier
        = shortened(std::string_view(app.bundleID ? *app.bundleID : std::string()), longestName, Cut::Middle);
    texts.sizeText = QString::fromStdString(formattedBytes(app.sizeInBytes));
    texts.totalText = QString::fromStdString(formattedBytes(app.totalSize()));
    texts.iconSource = ApplicationIconProvider::source(app.id);
    texts.leftoversTitle = tr("Leftovers (%1)").arg(leftovers);
    texts.withoutLeftovers = whyWithoutLeftovers(app);
    texts.question = filledIn(tr("Uninstall %1?"), texts.name);
    if (app.kind == InstalledApp::Kind::Flatpak) {
        texts.note = tr("Removes the app for good and moves all leftovers to Trash");
        texts.consequence = tr("Flatpak will remove the app for good: it can be installed again, but not be put back. "
                               "%n leftover items will be moved to Trash.",
            nullptr, leftovers);
        texts.consent = tr("Uninstall");
    } else {
        texts.note = tr("Removes the app and all leftovers to Trash");
        texts.consequence = tr("The app and %n leftover items will be moved to Trash.", nullptr, leftovers);
        texts.consent = tr("Move to Trash");
    }
    return texts;
}

} // namespace Korvane
