// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Tours/TourFixture.h"

#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/UI/Tours/KeyboardPlace.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <QThread>

#include <memory>

namespace Korvane {

namespace {

/// Generous: what a key begins may take its time on a busy machine.
constexpr int patience = 20'000;

QColor colorOfRings(QQmlEngine& engine)
{
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Korvane.UI\nQtObject { property QtObject theme: Theme }", QUrl());
    const std::unique_ptr<QObject> holder(component.create());
    return holder ? holder->property("theme").value<QObject*>()->property("focusRing").value<QColor>() : QColor();
}

} // namespace

TourFixture::TourFixture() { QCoreApplication::instance()->installEventFilter(this); }

TourFixture::~TourFixture() { QCoreApplication::instance()->removeEventFilter(this); }

bool TourFixture::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        ++m_pointerEvents;
        break;
    default:
        break;
    }
    return ScanScreenFixture::eventFilter(watched, event);
}

void TourFixture::cleanupTestCase() { QCOMPARE(m_pointerEvents, 0); }

QQuickWindow* TourFixture::front() { return qobject_cast<QQuickWindow*>(QGuiApplication::focusWindow()); }

QString TourFixture::focused() { return front() ? accessibleName(front()->activeFocusItem()) : QString(); }

void TourFixture::hit(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    if (QTest::currentTestFailed())
        return;
    QTRY_VERIFY_WITH_TIMEOUT(front(), patience);
    QTest::keyClick(front(), key, modifiers);
    const QColor ring = colorOfRings(m_app->engine());
    QString lost;
    const auto isLost = [&] { return !(lost = whyKeyboardIsLost(front(), ring)).isEmpty(); };
    QTRY_VERIFY2_WITH_TIMEOUT(!isLost(), qPrintable(lost), patience);
}

void TourFixture::type(const char* word) const
{
    for (; *word != 0; ++word)
        hit(Qt::Key(QChar::toUpper(uint(*word))));
}

void TourFixture::goTo(const char* name, Qt::Key key, int most) const
{
    for (int presses = 0; presses < most && focused() != utf8(name) && !QTest::currentTestFailed(); ++presses)
        hit(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    arriveAt(name);
}

void TourFixture::arriveAt(const char* name) const
{
    if (!QTest::currentTestFailed())
        QTRY_COMPARE_WITH_TIMEOUT(focused(), utf8(name), patience);
}

void TourFixture::open(const char* row) const
{
    const auto isInSidebar = [] {
        const QQuickItem* item = front() ? front()->activeFocusItem() : nullptr;
        return item != nullptr && QByteArray(item->metaObject()->className()).startsWith("SidebarRow_QML");
    };
    for (int presses = 0; presses < 2 && !isInSidebar(); ++presses)
        hit(Qt::Key_F6);
    for (const Qt::Key key : { Qt::Key_Up, Qt::Key_Down }) {
        for (QString before; focused() != utf8(row) && focused() != before && !QTest::currentTestFailed();) {
            before = focused();
            hit(key);
        }
    }
    arriveAt(row);
    hit(Qt::Key_Return);
    hit(Qt::Key_F6);
}

void TourFixture::beAsked(const char* answer, const char* first) const
{
    if (QTest::currentTestFailed())
        return;
    QTRY_VERIFY2_WITH_TIMEOUT(named(answer), answer, patience);
    arriveAt(first);
}

void TourFixture::beAskedNoMore(const char* answer) const
{
    if (QTest::currentTestFailed())
        return;
    QTRY_VERIFY2_WITH_TIMEOUT(!named(answer), answer, patience);
    // Not only faded away.
    const auto isCovered = [this] {
        for (const QQuickItem* item : window()->contentItem()->childItems()) {
            if (item->inherits("QQuickOverlay") && item->isVisible())
                return true;
        }
        return false;
    };
    QTRY_VERIFY_WITH_TIMEOUT(!isCovered(), patience);
}

void TourFixture::makeScansHoldable()
{
    const auto files = std::make_shared<ForwardingFileManager>(m_test->host.files);
    files->home = [this, home = home()] {
        // The screens ask too; only a scan may wait.
        while (m_held && QThread::currentThread() != QCoreApplication::instance()->thread())
            QThread::msleep(1);
        return home;
    };
    m_test->host.files = files;
    startApplication();
}

bool TourFixture::wasTrashed(const std::filesystem::path& original) const
{
    return isInTestTrash(m_test->host.environment, original.filename().string())
        && !std::filesystem::exists(std::filesystem::symlink_status(original));
}

} // namespace Korvane
