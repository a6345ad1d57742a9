// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/KorvaneApp.h"
#include "App/Languages.h"
#include "Tests/Support/TestHost.h"
#include "Tests/UI/Support/QmlWarnings.h"
#include "Tests/UI/Support/Screen.h"
#include "UI/Background.h"
#include "UI/PreferenceKeys.h"
#include "UI/ScanViewModel.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Korvane;

namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

/// The first item that is shown and of this kind; kinds of QML files are named as the files.
QQuickItem* shown(QQuickItem* item, const QString& kind)
{
    if (!item->isVisible())
        return nullptr;
    const QString name = utf8(item->metaObject()->className());
    if (name == kind || name.startsWith(kind + utf8("_QML")))
        return item;
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = shown(child, kind))
            return found;
    }
    return nullptr;
}

/// All items that are shown and of this kind.
QList<QQuickItem*> shownAll(const QQuickItem* item, const QString& kind)
{
    QList<QQuickItem*> found;
    for (QQuickItem* child : item->childItems()) {
        if (shown(child, kind) == child)
            found.append(child);
        found.append(shownAll(child, kind));
    }
    return found;
}

qreal middle(const QQuickItem* item) { return item->mapToScene(QPointF(item->width() / 2, 0)).x(); }

/// Whether a text can stand in a window of any language: figures and sizes, places, and the names of what was found.
bool isData(const QString& text)
{
    static const QRegularExpression size(utf8("^[\\d.,\\s]+(bytes|byte|B|KB|kB|MB|GB|TB)$"));
    static const QRegularExpression letters(utf8("[A-Za-z]"));
    return !text.contains(letters) || size.match(text).hasMatch() || text.contains(QLatin1Char('/'))
        || text.contains(utf8("org.example")) || text == utf8("Zero KB");
}

} // namespace

/// The real windows in the language of nobody, whose texts bear Hebrew letters and read from right to left.
class MirroringTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theSidebarIsOnTheRight();
    void aRowBeginsOnTheRight();
    void theMenuOfARowOpensAtItsName();
    void longAnswersHaveRoomInADialog();
    void everyTextOfEveryScreenIsTranslated_data();
    void everyTextOfEveryScreenIsTranslated();
    void everyTextOfTheFindingsIsTranslated();
    void everyTextOfTheSettingsIsTranslated();

private:
    QQuickWindow* window() const { return m_app->mainWindow(); }
    void find() const;
    static QStringList untranslated(const QQuickWindow* window);

    std::unique_ptr<Languages> m_languages;
    std::unique_ptr<QmlWarnings> m_warnings;
    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<TestHost> m_test;
    std::unique_ptr<KorvaneApp> m_app;
};

void MirroringTest::init()
{
    m_languages = std::make_unique<Languages>(QStringList(utf8("ar-XB")));
    m_warnings = std::make_unique<QmlWarnings>();
    m_folder = std::make_unique<TemporaryFolder>();
    m_test = std::make_unique<TestHost>(makeTestHost(*m_folder));
    const auto& home = m_test->host.environment.home;
    writeFile(home / "Library/Caches/org.example.maps/tiles/1.png", std::size_t{ 900'000 });
    writeFile(home / "Library/Logs/org.example.log", std::size_t{ 100'000 });
    m_app = std::make_unique<KorvaneApp>(m_test->host);
    QVERIFY(m_app->start());
    QVERIFY(QTest::qWaitForWindowExposed(window()));
}

void MirroringTest::cleanup()
{
    m_app.reset();
    finishBackgroundWork();
    const QStringList warnings = m_warnings->texts();
    m_warnings.reset();
    m_languages.reset();
    QCOMPARE(warnings, QStringList());
}

/// Scans until rows are shown.
void MirroringTest::find() const
{
    m_app->scanSystemJunk();
    QTRY_VERIFY(shown(window()->contentItem(), utf8("ResultRow")) != nullptr);
}

QStringList MirroringTest::untranslated(const QQuickWindow* window)
{
    QStringList texts = visibleTexts(window);
    texts.erase(std::remove_if(texts.begin(), texts.end(),
                    [](const QString& text) { return text.contains(utf8("א")) || isData(text); }),
        texts.end());
    return texts;
}

void MirroringTest::theSidebarIsOnTheRight()
{
    const QQuickItem* sidebar = shown(window()->contentItem(), utf8("Sidebar"));
    const QQuickItem* detail = shown(window()->contentItem(), utf8("DetailArea"));
    QVERIFY(sidebar && detail);
    QCOMPARE(sidebar->mapToScene(QPointF()).x() + sidebar->width(), static_cast<qreal>(window()->width()));
    QCOMPARE(detail->mapToScene(QPointF()).x(), 0.0);
    QQuickItem* row = shown(window()->contentItem(), utf8("SidebarRow"));
    const QQuickItem* symbol = shown(row, utf8("Korvane::Symbol"));
    const QQuickItem* title = shown(row, utf8("Label"));
    QVERIFY(symbol && title);
    QVERIFY(title->x() + title->width() <= symbol->x());
}

void MirroringTest::aRowBeginsOnTheRight()
{
    find();
    QQuickItem* row = shown(window()->contentItem(), utf8("ResultRow"));
    const QQuickItem* box = shown(row, utf8("CheckMark"));
    const QQuickItem* content = shown(row, utf8("ResultRowContent"));
    QVERIFY(box && content);
    QVERIFY(middle(box) > middle(content));
    QCOMPARE(box->mapToItem(row, QPointF(box->width(), 0)).x(), row->width() - 20);
    QVERIFY(row->mapFromItem(content, QPointF(content->width(), 0)).x() <= box->x());
    QQuickItem* heading = shown(window()->contentItem(), utf8("CategoryHeading"));
    QVERIFY(heading);
    QCOMPARE(middle(shown(heading, utf8("CheckMark"))), middle(box));
}

void MirroringTest::theMenuOfARowOpensAtItsName()
{
    find();
    QQuickItem* row = shown(window()->contentItem(), utf8("ResultRow"));
    const QQuickItem* name = shown(row, utf8("ResultRowContent"));
    QVERIFY(name);
    row->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window(), Qt::Key_Menu);
    QTRY_VERIFY(shown(window()->contentItem(), utf8("MenuItem")) != nullptr);
    const QQuickItem* item = shown(window()->contentItem(), utf8("MenuItem"));
    const qreal start = name->mapToScene(QPointF(name->width(), 0)).x();
    const qreal menuStart = item->mapToScene(QPointF(item->width(), 0)).x();
    // Within the menu's own frame.
    QVERIFY2(menuStart <= start && menuStart > start - 20, qPrintable(QString::number(menuStart - start)));
}

void MirroringTest::longAnswersHaveRoomInADialog()
{
    m_test->host.defaults->setBool(PreferenceKeys::moveToTrashInsteadOfDelete, false);
    find();
    auto* viewModel
        = shown(window()->contentItem(), utf8("ResultsView"))->property("viewModel").value<ScanViewModel*>();
    QVERIFY(viewModel);
    viewModel->requestClean();
    QTRY_VERIFY(shown(window()->contentItem(), utf8("ConfirmationContent")) != nullptr);
    const QQuickItem* dialog = shown(window()->contentItem(), utf8("ConfirmationContent"));
    const QList<QQuickItem*> buttons = shownAll(dialog, utf8("Button"));
    QCOMPARE(buttons.size(), 2);
    for (const QQuickItem* button : buttons) {
        const qreal needed = button->property("implicitContentWidth").toReal();
        const QString text = button->property("text").toString();
        QTRY_VERIFY2(button->property("availableWidth").toReal() >= needed, qPrintable(text));
    }
}

void MirroringTest::everyTextOfEveryScreenIsTranslated_data()
{
    QTest::addColumn<int>("module");
    QTest::newRow("dashboard") << -1;
    for (const CleanerModule module : allCleanerModules)
        QTest::newRow(std::string(rawValue(module)).c_str()) << static_cast<int>(module);
}

void MirroringTest::everyTextOfEveryScreenIsTranslated()
{
    QFETCH(const int, module);
    if (module >= 0)
        m_app->state().setSelectedModule(static_cast<CleanerModule>(module));
    QTRY_VERIFY(visibleTexts(window()).size() > 10);
    QCOMPARE(untranslated(window()), QStringList());
}

void MirroringTest::everyTextOfTheFindingsIsTranslated()
{
    find();
    QCOMPARE(untranslated(window()), QStringList());
    // The size in it stays together.
    static const QRegularExpression found(utf8("selected of \u2068[^\u2068\u2069]+\u2069 found"));
    QVERIFY(!visibleTexts(window()).filter(found).isEmpty());
}

void MirroringTest::everyTextOfTheSettingsIsTranslated()
{
    m_app->openSettings();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto settings = std::find_if(windows.begin(), windows.end(),
        [this](const QWindow* candidate) { return candidate != window() && candidate->isVisible(); });
    QVERIFY(settings != windows.end());
    const auto* quick = qobject_cast<QQuickWindow*>(*settings);
    QVERIFY(quick);
    QVERIFY(quick->title().contains(utf8("א")));
    QVERIFY(visibleTexts(quick).size() > 4);
    QCOMPARE(untranslated(quick), QStringList());
}

QTEST_MAIN(MirroringTest)
#include "MirroringTest.moc"
