// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/KorvaneApp.h"
#include "App/Languages.h"
#include "Tests/Support/TestHost.h"
#include "Tests/UI/Support/QmlWarnings.h"
#include "Tests/UI/Support/Screen.h"
#include "UI/Background.h"
#include "UI/PreferenceKeys.h"

#include <QTest>

#include <memory>

using namespace Korvane;

namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

bool isButton(const QQuickItem* item) { return item->inherits("QQuickAbstractButton"); }

void collect(QQuickItem* item, QList<QQuickItem*>& buttons)
{
    if (!item->isVisible())
        return;
    if (isButton(item))
        buttons.append(item);
    for (QQuickItem* child : item->childItems())
        collect(child, buttons);
}

/// The push buttons that are shown; kinds of QML files are named as the files.
QList<QQuickItem*> pushButtons(const QQuickWindow* window)
{
    QList<QQuickItem*> buttons;
    collect(window->contentItem(), buttons);
    buttons.removeIf(
        [](const QQuickItem* item) { return !utf8(item->metaObject()->className()).startsWith(utf8("Button_QML")); });
    return buttons;
}

} // namespace

/// The smallest window in every language.
class FittingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyButtonHoldsItsText_data();
    void everyButtonHoldsItsText();

private:
    /// The texts that are wider than their buttons, of those that are shown.
    QStringList tooWide() const;
    void makeFindings(const TestHost& test) const;

    std::unique_ptr<KorvaneApp> m_app;
};

QStringList FittingTest::tooWide() const
{
    QStringList texts;
    for (const QQuickItem* button : pushButtons(m_app->mainWindow())) {
        if (button->implicitWidth() > button->width() + 0.5)
            texts.append(accessibleName(button));
    }
    return texts;
}

void FittingTest::makeFindings(const TestHost& test) const
{
    // What is deleted for good has the longest words.
    QVERIFY(test.host.defaults->setBool(PreferenceKeys::moveToTrashInsteadOfDelete, false));
    writeFile(test.host.environment.home / "Library/Caches/org.example.maps/tiles/1.png", std::size_t{ 900'000 });
}

void FittingTest::everyButtonHoldsItsText_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : Languages::available())
        QTest::newRow(qPrintable(language)) << language;
    QTest::newRow("English") << utf8("en");
}

void FittingTest::everyButtonHoldsItsText()
{
    QFETCH(const QString, language);
    const Languages languages({ QString(language).replace(u'_', u'-') });
    const TemporaryFolder folder;
    const TestHost test = makeTestHost(folder);
    makeFindings(test);
    m_app = std::make_unique<KorvaneApp>(test.host);
    QVERIFY(m_app->start());
    QQuickWindow* window = m_app->mainWindow();
    window->resize(window->minimumSize());
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QTRY_COMPARE(window->contentItem()->size().toSize(), window->minimumSize());
    QTRY_COMPARE(tooWide(), QStringList());
    for (const CleanerModule module : allCleanerModules) {
        m_app->state().setSelectedModule(module);
        QTRY_VERIFY(!pushButtons(window).isEmpty());
        QTRY_COMPARE(tooWide(), QStringList());
    }
    m_app->scanSystemJunk();
    const QString clean = QCoreApplication::translate("ResultsView", "Clean");
    QTRY_VERIFY(control(window, clean) != nullptr && control(window, clean)->isEnabled());
    QTRY_COMPARE(tooWide(), QStringList());
    const auto before = pushButtons(window).size();
    click(control(window, clean));
    QTRY_VERIFY(pushButtons(window).size() == before + 2);
    QTRY_COMPARE(tooWide(), QStringList());
    m_app.reset();
    finishBackgroundWork();
}

QTEST_MAIN(FittingTest)
#include "FittingTest.moc"
