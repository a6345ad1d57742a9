// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/InstalledAppTexts.h"

#include <QtTest>

using namespace Korvane;

/// What the screen says of applications of every kind.
class InstalledAppTextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysWhyThereAreNoLeftovers();
    void anAppImageGoesToTheTrashAsABundleDoes();
    void aFlatpakSaysThatItCannotBePutBack();
    void aNameOfAnyLengthFitsIntoTheWindow();
};

namespace {

InstalledApp app(const std::string& name, std::optional<std::string> bundleID, std::vector<ScanItem> leftovers = {})
{
    return { "/Applications/" + name + ".app", name, std::move(bundleID), 2'000'000, std::move(leftovers) };
}

} // namespace

void InstalledAppTextsTest::saysWhyThereAreNoLeftovers()
{
    const InstalledApp some = app("Some", "org.example.Some", { { "/left/a", std::nullopt, "Caches", 1, true } });
    QCOMPARE(InstalledAppTexts::of(some).identifier, QStringLiteral("org.example.Some"));
    QCOMPARE(InstalledAppTexts::of(some).withoutLeftovers, QString());
    const QString noneFound = QStringLiteral("No leftover files were found.");
    QCOMPARE(InstalledAppTexts::of(app("None", "org.example.None")).withoutLeftovers, noneFound);
    const auto unusable
        = QString::fromUtf8("Without a usable identifier, no leftover files can be told to be this app\xE2\x80\x99s.");
    const InstalledAppTexts bare = InstalledAppTexts::of(app("Bare", std::nullopt));
    QCOMPARE(bare.withoutLeftovers, unusable);
    QCOMPARE(bare.identifier, QString());
    const InstalledAppTexts hostile = InstalledAppTexts::of(app("Hostile", "../../etc"));
    QCOMPARE(hostile.withoutLeftovers, unusable);
    QCOMPARE(hostile.identifier, QStringLiteral("../../etc"));
}

void InstalledAppTextsTest::anAppImageGoesToTheTrashAsABundleDoes()
{
    InstalledApp image = app("Drawn", "drawn", { { "/left/drawn.desktop", std::nullopt, "Desktop Entry", 1, true } });
    const InstalledAppTexts bundle = InstalledAppTexts::of(image);
    image.kind = InstalledApp::Kind::AppImage;
    const InstalledAppTexts texts = InstalledAppTexts::of(image);
    QCOMPARE(texts.question, QStringLiteral("Uninstall Drawn?"));
    QCOMPARE(texts.consequence, QStringLiteral("The app and 1 leftover items will be moved to Trash."));
    QCOMPARE(texts.consent, QStringLiteral("Move to Trash"));
    QCOMPARE(texts.note, bundle.note);
}

void InstalledAppTextsTest::aNameOfAnyLengthFitsIntoTheWindow()
{
    const std::string name = "A" + std::string(100'000, 'b') + "Z";
    const InstalledAppTexts texts = InstalledAppTexts::of(app(name, name));
    for (const QString& shown : { texts.name, texts.identifier }) {
        QCOMPARE(shown.size(), 160);
        QVERIFY(shown.startsWith(u'A') && shown.contains(u'\u2026') && shown.endsWith(u'Z'));
    }
    QVERIFY(texts.question.size() < 200);
}

void InstalledAppTextsTest::aFlatpakSaysThatItCannotBePutBack()
{
    InstalledApp flatpak = app("Boxed", "org.example.Boxed");
    flatpak.kind = InstalledApp::Kind::Flatpak;
    const InstalledAppTexts texts = InstalledAppTexts::of(flatpak);
    QCOMPARE(texts.consequence,
        QStringLiteral("Flatpak will remove the app for good: it can be installed again, but not be put back. "
                       "0 leftover items will be moved to Trash."));
    QCOMPARE(texts.consent, QStringLiteral("Uninstall"));
}

QTEST_GUILESS_MAIN(InstalledAppTextsTest)
#include "InstalledAppTextsTest.moc"
