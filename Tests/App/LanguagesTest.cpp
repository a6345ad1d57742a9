// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/Languages.h"
#include "Platform/Localized.h"
#include "UI/FilledText.h"

#include <QFile>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTest>

using namespace Korvane;

namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

QString pseudo(const QString& key) { return QString::fromUtf8("א") + key; }

} // namespace

class LanguagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasACatalogueForEachLanguage();
    void choosesTheFirstThatThereIs_data();
    void choosesTheFirstThatThereIs();
    void theRulesSpeakTheLanguageOfTheProgram();
    void englishStaysWhatItIs();
    void theDirectionIsThatOfTheLanguage_data();
    void theDirectionIsThatOfTheLanguage();
    void qtSpeaksIt_data();
    void qtSpeaksIt();
    void macOSIsToldOfEachLanguage();
    void argumentsAreFilledInOnce();
    void argumentsKeepToThemselvesFromRightToLeft();
};

void LanguagesTest::hasACatalogueForEachLanguage()
{
    QCOMPARE(Languages::available(),
        QStringList({ utf8("ar_XB"), utf8("de"), utf8("es"), utf8("fr"), utf8("ja"), utf8("zh_CN") }));
}

void LanguagesTest::choosesTheFirstThatThereIs_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("chosen");
    const auto row = [](const char* name, const char* wanted, const char* chosen) {
        QTest::newRow(name) << utf8(wanted).split(QLatin1Char(' '), Qt::SkipEmptyParts) << utf8(chosen);
    };
    row("German", "de", "de");
    row("German in Austria", "de-AT de-Latn-AT de", "de");
    row("French in Canada", "fr-CA", "fr");
    row("Spanish in Mexico", "es-MX", "es");
    row("Japanese", "ja-JP ja", "ja");
    row("Chinese in China", "zh-CN", "zh_CN");
    row("Chinese in Singapore", "zh-SG zh-Hans-SG", "zh_CN");
    row("Chinese by its script", "zh-Hans", "zh_CN");
    row("Chinese by nothing more", "zh", "zh_CN");
    row("Chinese in Taiwan", "zh-TW zh-Hant-TW", "");
    row("Chinese in Hong Kong", "zh-HK zh-Hant-HK", "");
    row("Taiwan, but in the script of China", "zh-Hans-TW", "zh_CN");
    row("Taiwan, and then Japanese", "zh-TW zh-Hant-TW ja", "ja");
    row("Portuguese", "pt-BR pt", "");
    row("Portuguese, and then French", "pt pt-BR fr-CA", "fr");
    row("English before German", "en-US en de", "");
    row("the C locale", "C", "");
    row("nothing", "", "");
    row("no language", "xx-YY", "");
    row("Arabic", "ar-EG ar", "");
    row("the language of nobody", "ar-XB ar-Arab-EG ar", "ar_XB");
}

void LanguagesTest::choosesTheFirstThatThereIs()
{
    QFETCH(const QStringList, wanted);
    QFETCH(const QString, chosen);
    QCOMPARE(Languages::chosen(wanted, Languages::available()), chosen);
    const Languages languages(wanted);
    QCOMPARE(languages.name(), chosen);
}

void LanguagesTest::theRulesSpeakTheLanguageOfTheProgram()
{
    const Languages languages({ utf8("ar-XB") });
    const auto text = QString::fromStdString(localized("Errors", "The root of the file system is never removed."));
    QVERIFY2(text.startsWith(pseudo(utf8("The root of the file system is never removed."))), qPrintable(text));
    const auto copies = QString::fromStdString(
        localized("Duplicates", "%1 — %n copies, %2 each", "%1 is the name of a file, %2 the size of each copy", 3));
    QVERIFY2(copies.startsWith(pseudo(utf8("%1 — 3 copies, %2 each"))), qPrintable(copies));
}

void LanguagesTest::englishStaysWhatItIs()
{
    {
        const Languages languages({ utf8("ar-XB") });
    }
    const Languages languages({ utf8("en-GB") });
    QCOMPARE(localized("Errors", "The command failed: %1"), std::string("The command failed: %1"));
    QCOMPARE(localized("Duplicates", "%n copies", "", 1), std::string("1 copies"));
    QCOMPARE(QCoreApplication::translate("ScanningView", "Cancel"), utf8("Cancel"));
}

void LanguagesTest::theDirectionIsThatOfTheLanguage_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("German") << utf8("de") << Qt::LeftToRight;
    QTest::newRow("the language of nobody") << utf8("ar-XB") << Qt::RightToLeft;
    // There is no Hebrew: its texts are English.
    QTest::newRow("Hebrew") << utf8("he") << Qt::LeftToRight;
}

void LanguagesTest::theDirectionIsThatOfTheLanguage()
{
    QFETCH(const QString, wanted);
    QFETCH(const Qt::LayoutDirection, direction);
    const Languages languages({ wanted });
    QCOMPARE(QGuiApplication::layoutDirection(), direction);
}

void LanguagesTest::qtSpeaksIt_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("cancel");
    const auto row
        = [](const char* wanted, const char* cancel) { QTest::newRow(wanted) << utf8(wanted) << utf8(cancel); };
    row("en", "Cancel");
    row("de", "Abbrechen");
    row("es", "Cancelar");
    row("fr", "Annuler");
    row("ja", "キャンセル");
    row("zh-CN", "取消");
}

void LanguagesTest::qtSpeaksIt()
{
    QFETCH(const QString, wanted);
    QFETCH(const QString, cancel);
    const Languages languages({ wanted });
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), cancel);
    const QString quit = QCoreApplication::translate("MAC_APPLICATION_MENU", "Quit %1");
    QVERIFY(quit.contains(utf8("%1")));
    QCOMPARE(quit == utf8("Quit %1"), languages.name().isEmpty());
}

void LanguagesTest::macOSIsToldOfEachLanguage()
{
    QFile file(utf8(KORVANE_INFO_PLIST));
    QVERIFY(file.open(QIODevice::ReadOnly));
    static const QRegularExpression list(utf8("<key>CFBundleLocalizations</key>\\s*<array>(.*?)</array>"),
        QRegularExpression::DotMatchesEverythingOption);
    const QString text = QString::fromUtf8(file.readAll());
    const QRegularExpressionMatch match = list.match(text);
    QVERIFY(match.hasMatch());
    static const QRegularExpression entry(utf8("<string>([^<]*)</string>"));
    QStringList told;
    for (auto found = entry.globalMatch(match.captured(1)); found.hasNext();)
        told.append(found.next().captured(1));
    QStringList spoken{ utf8("en") };
    // The name that macOS has for each, and without the language of nobody.
    for (const QString& name : Languages::available()) {
        if (name != utf8("ar_XB"))
            spoken.append(name == utf8("zh_CN") ? utf8("zh-Hans") : name);
    }
    told.sort();
    spoken.sort();
    QCOMPARE(told, spoken);
}

void LanguagesTest::argumentsAreFilledInOnce()
{
    QCOMPARE(filledIn("%2, not %1", { "%2", "a" }), std::string("a, not %2"));
    QCOMPARE(filledIn("100 %, %3 and %", { "a" }), std::string("100 %, %3 and %"));
    QCOMPARE(filledIn("%1%1", { "a" }), std::string("aa"));
}

void LanguagesTest::argumentsKeepToThemselvesFromRightToLeft()
{
    {
        const Languages languages({ utf8("ar-XB") });
        QCOMPARE(filledIn("%1, %2", { "26.1 GB", "b" }), std::string("\u206826.1 GB\u2069, \u2068b\u2069"));
        QCOMPARE(filledIn(utf8("\u05D0 %1"), utf8("/a/\u05D1")), utf8("\u05D0 \u2068/a/\u05D1\u2069"));
    }
    for (const char* name : { "en", "de", "" }) {
        const Languages languages({ utf8(name) });
        QCOMPARE(filledIn("%1, %2", { "26.1 GB", "b" }), std::string("26.1 GB, b"));
        QCOMPARE(filledIn(utf8("%2 %1"), utf8("ä%2"), utf8("b")), utf8("b ä%2"));
    }
}

QTEST_MAIN(LanguagesTest)
#include "LanguagesTest.moc"
