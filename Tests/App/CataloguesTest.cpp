// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/Languages.h"
#include "Tests/App/Catalogue.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Korvane;

namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

QString catalogueOf(const QString& language)
{
    return utf8(KORVANE_SOURCE_DIR "/Translations/korvane_%1.ts").arg(language);
}

QStringList placeholders(const QString& text)
{
    static const QRegularExpression place(utf8("%(L?[1-9]|L?n)"));
    QStringList found;
    for (auto matches = place.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    found.sort();
    return found;
}

/// Marks that end a text, each with those that do the same in other languages.
QString ending(const QString& text)
{
    static const QList<QPair<QString, QString>> endings{ { utf8("…"), utf8("…") }, { utf8("."), utf8(".。") },
        { utf8("?"), utf8("?？") }, { utf8("!"), utf8("!！") }, { utf8(":"), utf8(":：") } };
    for (const auto& [name, marks] : endings) {
        if (!text.isEmpty() && marks.contains(text.back()))
            return name;
    }
    return {};
}

qsizetype quotes(const QString& text)
{
    static const QString marks = utf8("“”„«»「」『』\"");
    return std::count_if(text.begin(), text.end(), [](QChar letter) { return marks.contains(letter); });
}

bool hasAccelerator(const QString& text)
{
    static const QRegularExpression accelerator(utf8("&\\S"));
    return text.contains(accelerator);
}

/// What is wrong with a translation; empty when nothing is.
QString fault(const QString& source, const QString& text)
{
    if (text.isEmpty())
        return utf8("is empty");
    if (text.trimmed() != text)
        return utf8("begins or ends with a blank");
    if (placeholders(source) != placeholders(text))
        return utf8("has other placeholders");
    if (ending(source) != ending(text))
        return utf8("ends with another mark");
    if (quotes(text) < quotes(source) || quotes(text) % 2 != 0)
        return utf8("has lost a quotation mark");
    if (source.count(QLatin1Char('\n')) != text.count(QLatin1Char('\n')))
        return utf8("has other lines");
    if (hasAccelerator(text))
        return utf8("has an accelerator");
    return {};
}

QStringList faults(const Catalogue& catalogue, qsizetype pluralForms)
{
    QStringList found;
    for (const auto& [key, entry] : catalogue) {
        if (!entry.state.isEmpty())
            found.append(key.context + utf8(": ") + key.source + utf8(": is ") + entry.state);
        if (entry.forms.size() != (key.counts ? pluralForms : 1))
            found.append(key.context + utf8(": ") + key.source + utf8(": has not all its plural forms"));
        for (const QString& form : entry.forms) {
            if (const QString what = fault(key.source, form); !what.isEmpty())
                found.append(key.context + utf8(": ") + form + utf8(": ") + what);
        }
    }
    return found;
}

QStringList names(const Catalogue& catalogue)
{
    QStringList all;
    for (const auto& [key, entry] : catalogue)
        all.append(key.context + utf8(": ") + key.source + (key.counts ? utf8(" (counts)") : QString()));
    return all;
}

QStringList without(QStringList all, const QStringList& others)
{
    all.erase(
        std::remove_if(all.begin(), all.end(), [&](const QString& name) { return others.contains(name); }), all.end());
    return all;
}

/// A text about that many files, without its figures.
QString about(int count)
{
    static const QRegularExpression figures(utf8("\\d"));
    return QCoreApplication::translate("Korvane::IOSMediaViewModel", "%n files selected", nullptr, count)
        .remove(figures);
}

} // namespace

/// The catalogues of the languages that people speak.
class CataloguesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void hasEveryTextAndNoOther_data() { languages(); }
    void hasEveryTextAndNoOther();
    void everyTranslationIsInOrder_data() { languages(); }
    void everyTranslationIsInOrder();
    void theProgramSpeaksIt_data();
    void theProgramSpeaksIt();
    void countsAsItsPeopleDo_data() { languages(); }
    void countsAsItsPeopleDo();

private:
    static void languages();

    QTemporaryDir m_folder;
    Catalogue m_texts; ///< All that are in the sources.
};

void CataloguesTest::languages()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("pluralForms");
    QTest::addColumn<QList<int>>("singular");
    // Which of 0, 1, 2 and 5 are spoken of as one is.
    QTest::newRow("German") << utf8("de") << 2 << QList<int>{ 1 };
    QTest::newRow("Spanish") << utf8("es") << 2 << QList<int>{ 1 };
    QTest::newRow("French") << utf8("fr") << 2 << QList<int>{ 0, 1 };
    QTest::newRow("Japanese") << utf8("ja") << 1 << QList<int>{ 0, 1, 2, 5 };
    QTest::newRow("Chinese") << utf8("zh_CN") << 1 << QList<int>{ 0, 1, 2, 5 };
}

/// Collects the texts of the sources afresh.
void CataloguesTest::initTestCase()
{
    const QString path = m_folder.filePath(utf8("korvane_de.ts"));
    QProcess lupdate;
    lupdate.setWorkingDirectory(utf8(KORVANE_SOURCE_DIR));
    lupdate.setProcessChannelMode(QProcess::MergedChannels);
    lupdate.start(utf8(KORVANE_LUPDATE), utf8(KORVANE_LUPDATE_OPTIONS).split(QLatin1Char(' ')) << utf8("-ts") << path);
    QVERIFY2(lupdate.waitForFinished(60'000) && lupdate.exitCode() == 0, lupdate.readAll().constData());
    const auto texts = readCatalogue(path);
    QVERIFY(texts && texts->size() > 200);
    m_texts = *texts;
}

void CataloguesTest::hasEveryTextAndNoOther()
{
    QFETCH(const QString, language);
    const auto catalogue = readCatalogue(catalogueOf(language));
    QVERIFY(catalogue);
    QCOMPARE(without(names(m_texts), names(*catalogue)), QStringList());
    QCOMPARE(without(names(*catalogue), names(m_texts)), QStringList());
}

void CataloguesTest::everyTranslationIsInOrder()
{
    QFETCH(const QString, language);
    QFETCH(const int, pluralForms);
    const auto catalogue = readCatalogue(catalogueOf(language));
    QVERIFY(catalogue);
    const QStringList found = faults(*catalogue, pluralForms);
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void CataloguesTest::theProgramSpeaksIt_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("cancel");
    const auto row
        = [](const char* locale, const char* cancel) { QTest::newRow(locale) << utf8(locale) << utf8(cancel); };
    row("de", "Abbrechen");
    row("de-AT", "Abbrechen");
    row("fr-CA", "Annuler");
    row("es-MX", "Cancelar");
    row("ja", "キャンセル");
    row("zh-CN", "取消");
    row("zh-SG", "取消");
    row("zh-TW", "Cancel");
    row("pt", "Cancel");
    row("en-GB", "Cancel");
}

void CataloguesTest::theProgramSpeaksIt()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, cancel);
    const Languages spoken({ locale });
    QCOMPARE(QCoreApplication::translate("ConfirmationDialog", "Cancel"), cancel);
}

void CataloguesTest::countsAsItsPeopleDo()
{
    QFETCH(const QString, language);
    QFETCH(const QList<int>, singular);
    const Languages spoken({ language });
    const QString one = about(1);
    QVERIFY(!one.contains(utf8("files")));
    for (const int count : { 0, 1, 2, 5 })
        QCOMPARE(about(count) == one, singular.contains(count));
    QCOMPARE(about(0) == about(2), !singular.contains(0) || singular.contains(2));
    QCOMPARE(about(2), about(5));
}

QTEST_MAIN(CataloguesTest)
#include "CataloguesTest.moc"
