// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/AppState.h"
#include "Tests/UI/Support/QmlWarnings.h"
#include "Tests/UI/Support/Screen.h"
#include "UI/Appearance.h"
#include "UI/Background.h"
#include "UI/DashboardViewModel.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSemaphore>
#include <QTest>

#include <algorithm>
#include <memory>
#include <optional>

using namespace Korvane;

/// The cards of the dashboard, on disks that a test makes up.
class DashboardCardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theBarIsBlueUpToNineTenthsAndOrangeBeyond_data();
    void theBarIsBlueUpToNineTenthsAndOrangeBeyond();
    void aFailedLookupShowsAnEmptyBar();
    void bothPartsOfTheBarAreNamed();
    void theLegendGivesWayToTheWords();
    void theDiskIsMeasuredWhenTheCardComesIntoView();
    void isPaintedWhileAllThreadsWork();
    void smartScanAsksForAScan();
    void aCardGrowsUnderThePointer();
    void aCardDoesNotMoveUnderReducedMotion();

private:
    /// Counts the measurements that have been told, if asked to.
    void open(std::optional<VolumeCapacity> capacity, int* measured = nullptr);
    QQuickItem* named(const char* name) const { return control(m_window.get(), QString::fromUtf8(name)); }
    QQuickItem* bar() const { return itemsNamed(m_window.get(), "Used space of the startup disk").value(0); }
    double growth() const { return named("Duplicates")->property("growth").toDouble(); }
    void point(const QQuickItem* item) const;

    std::unique_ptr<QmlWarnings> m_warnings;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<ModuleViewModel> m_module;
    std::unique_ptr<DashboardViewModel> m_dashboard;
    std::unique_ptr<QQuickWindow> m_window;
    QObject* m_theme = nullptr;
    Appearance* m_appearance = nullptr;
};

void DashboardCardTest::init()
{
    m_warnings = std::make_unique<QmlWarnings>();
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    m_state = std::make_unique<AppState>();
    m_module = std::make_unique<ModuleViewModel>(CleanerModule::duplicates);
}

void DashboardCardTest::cleanup()
{
    m_window.reset();
    m_dashboard.reset();
    m_engine.reset();
    QCOMPARE(m_warnings->texts(), QStringList());
    m_warnings.reset();
}

void DashboardCardTest::open(std::optional<VolumeCapacity> capacity, int* measured)
{
    m_dashboard = std::make_unique<DashboardViewModel>(
        QList<ModuleViewModel*>{ m_module.get() }, *m_state, [capacity] { return capacity; });
    if (measured != nullptr)
        connect(m_dashboard.get(), &DashboardViewModel::measured, this, [measured] { ++*measured; });
    QQmlComponent component(m_engine.get());
    component.setData("import QtQuick\nimport Korvane.UI\n"
                      "Window { id: w; width: 960; height: 620; visible: true\n"
                      "property DashboardViewModel dashboard\n"
                      "property QtObject theme: Theme\nproperty QtObject appearance: Appearance\n"
                      "DashboardView { anchors.fill: parent; viewModel: w.dashboard } }",
        QUrl());
    m_window.reset(qobject_cast<QQuickWindow*>(
        component.createWithInitialProperties({ { "dashboard", QVariant::fromValue(m_dashboard.get()) } })));
    QVERIFY2(m_window, qPrintable(component.errorString()));
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_theme = m_window->property("theme").value<QObject*>();
    m_appearance = qobject_cast<Appearance*>(m_window->property("appearance").value<QObject*>());
    m_appearance->setReducedMotion(false);
    QTRY_COMPARE(m_dashboard->totalBytes(), capacity ? capacity->total : 0);
    QTRY_VERIFY(bar());
}

void DashboardCardTest::point(const QQuickItem* item) const
{
    QTest::mouseMove(m_window.get(), item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
}

void DashboardCardTest::theBarIsBlueUpToNineTenthsAndOrangeBeyond_data()
{
    QTest::addColumn<qint64>("available");
    QTest::addColumn<QByteArray>("colour");
    QTest::newRow("empty") << qint64{ 1'000'000 } << QByteArray("blue");
    QTest::newRow("more free than there is") << qint64{ 1'200'000 } << QByteArray("blue");
    QTest::newRow("exactly nine tenths") << qint64{ 100'000 } << QByteArray("blue");
    QTest::newRow("one byte more") << qint64{ 99'999 } << QByteArray("orange");
    QTest::newRow("full") << qint64{ 0 } << QByteArray("orange");
}

void DashboardCardTest::theBarIsBlueUpToNineTenthsAndOrangeBeyond()
{
    QFETCH(const qint64, available);
    QFETCH(const QByteArray, colour);
    open(VolumeCapacity{ 1'000'000, available });
    QTRY_COMPARE(bar()->property("tint").value<QColor>(), m_theme->property(colour).value<QColor>());
    QTRY_COMPARE(bar()->property("value").toDouble(), std::max(0.0, 1 - static_cast<double>(available) / 1e6));
}

void DashboardCardTest::aFailedLookupShowsAnEmptyBar()
{
    open(std::nullopt);
    QVERIFY(visibleTexts(m_window.get()).contains(QStringLiteral("Zero KB free of Zero KB")));
    QCOMPARE(bar()->property("value").toDouble(), 0.0);
    QCOMPARE(bar()->property("tint").value<QColor>(), m_theme->property("blue").value<QColor>());
}

void DashboardCardTest::bothPartsOfTheBarAreNamed()
{
    open(VolumeCapacity{ 500'000'000'000, 120'500'000'000 });
    const QStringList texts = visibleTexts(m_window.get());
    for (const char* text : { "120.5 GB free of 500 GB", "Used", "379.5 GB", "Free", "120.5 GB" })
        QVERIFY2(texts.contains(QLatin1String(text)), text);
}

void DashboardCardTest::theLegendGivesWayToTheWords()
{
    QQmlComponent component(m_engine.get());
    component.setData("import QtQuick\nimport Korvane.UI\n"
                      "Window { width: 800; height: 100; visible: true\nproperty alias space: caption.width\n"
                      "StorageCaption { id: caption; width: 600; tint: Theme.blue; text: \"120.5 GB free of 500 GB\"\n"
                      "used: \"379.5 GB\"; free: \"120.4 GB\" } }",
        QUrl());
    m_window.reset(qobject_cast<QQuickWindow*>(component.create()));
    QVERIFY2(m_window, qPrintable(component.errorString()));
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    const QStringList words{ QStringLiteral("120.5 GB free of 500 GB") };
    const QStringList keys{ QStringLiteral("Used"), QStringLiteral("Free") };
    QStringList seen = visibleTexts(m_window.get());
    QCOMPARE(seen, words + QStringList({ keys.first(), "379.5 GB", keys.last(), "120.4 GB" }));
    // What is seen never becomes more as the space becomes less, and each step comes.
    QList<qsizetype> steps;
    for (int space = 600; space > 100; space -= 4) {
        m_window->setProperty("space", space);
        seen = visibleTexts(m_window.get());
        if (steps.isEmpty() || steps.last() != seen.size())
            steps.append(seen.size());
        if (seen.size() == 3)
            QCOMPARE(seen, words + keys);
    }
    QCOMPARE(steps, QList<qsizetype>({ 5, 3, 1 }));
    QCOMPARE(seen, words);
}

void DashboardCardTest::theDiskIsMeasuredWhenTheCardComesIntoView()
{
    int measured = 0;
    open(VolumeCapacity{ 1000, 500 }, &measured);
    QCOMPARE(measured, 1);
    m_window->hide();
    m_window->show();
    QTRY_COMPARE(measured, 2);
    QQuickItem* page = m_window->contentItem()->childItems().first();
    page->setVisible(false);
    page->setVisible(true);
    QTRY_COMPARE(measured, 3);
}

void DashboardCardTest::isPaintedWhileAllThreadsWork()
{
    open(VolumeCapacity{ 1000, 500 });
    QSemaphore begun;
    QSemaphore mayEnd;
    const int threads = backgroundThreads().maxThreadCount();
    for (int i = 0; i < threads; ++i) {
        runInBackground(
            this,
            [&] {
                begun.release();
                mayEnd.acquire();
                return true;
            },
            [](bool) {});
    }
    begun.acquire(threads);
    QCOMPARE(QThreadPool::globalInstance()->activeThreadCount(), 0);
    m_window->resize(1600, 1000);
    QTRY_COMPARE(m_window->contentItem()->width(), 1600.0);
    QVERIFY(!m_window->grabWindow().isNull());
    mayEnd.release(threads);
    backgroundThreads().waitForDone();
}

void DashboardCardTest::smartScanAsksForAScan()
{
    open(VolumeCapacity{ 1000, 500 });
    click(named("Smart Scan"));
    QTRY_VERIFY(m_state->selectedModule() == CleanerModule::systemJunk);
    QVERIFY(m_state->pendingScan() == CleanerModule::systemJunk);
}

void DashboardCardTest::aCardGrowsUnderThePointer()
{
    open(VolumeCapacity{ 1000, 500 });
    QCOMPARE(growth(), 0.0);
    point(named("Duplicates"));
    QTRY_VERIFY(growth() > 0);
    const double before = growth();
    QTRY_COMPARE(growth(), 3.0);
    QVERIFY(before < 3);
    QTest::mouseMove(m_window.get(), QPoint(2, 2));
    QTRY_COMPARE(growth(), 0.0);
}

void DashboardCardTest::aCardDoesNotMoveUnderReducedMotion()
{
    open(VolumeCapacity{ 1000, 500 });
    m_appearance->setReducedMotion(true);
    QCOMPARE(m_theme->property("durationShort").toInt(), 0);
    point(named("Duplicates"));
    QTRY_VERIFY(growth() > 0);
    QCOMPARE(growth(), 3.0);
}

QTEST_MAIN(DashboardCardTest)
#include "DashboardCardTest.moc"
