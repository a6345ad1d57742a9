// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Scan/ScanScreenFixture.h"

#include "UI/Background.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QTest>

namespace Korvane {

namespace {

/// The check box of this class and accessible name; null when it cannot be seen.
QQuickItem* checkBoxIn(QQuickItem* item, const char* kind, const QString& name)
{
    if (!item->isVisible())
        return nullptr;
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(item);
    if (interface && item->inherits(kind) && interface->text(QAccessible::Name) == name)
        return item;
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = checkBoxIn(child, kind, name))
            return found;
    }
    return nullptr;
}

/// Presses an item once it has come to rest.
void clickAtRest(QQuickItem* item)
{
    QPointF before;
    do {
        before = item->mapToScene(QPointF());
        QTest::qWait(50);
    } while (item->mapToScene(QPointF()) != before);
    click(item);
}

} // namespace

void ScanScreenFixture::init()
{
    m_warnings = std::make_unique<QmlWarnings>();
    m_folder = std::make_unique<TemporaryFolder>();
    m_test = std::make_unique<TestHost>(makeTestHost(*m_folder));
    m_sentinel = std::make_unique<Sentinel>(home() / "Documents/letter.txt");
    startApplication();
}

void ScanScreenFixture::startApplication()
{
    m_app.reset();
    m_app = std::make_unique<KorvaneApp>(m_test->host);
    QVERIFY(m_app->start());
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    window()->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(window()));
}

void ScanScreenFixture::cleanup()
{
    m_app.reset();
    finishBackgroundWork();
    const QStringList warnings = m_warnings->texts();
    m_warnings.reset();
    QCOMPARE(warnings, QStringList());
    QVERIFY2(m_sentinel->isUnchanged(), m_sentinel->difference().c_str());
}

void ScanScreenFixture::press(const char* name) const
{
    QTRY_VERIFY2(named(name), name);
    QTRY_VERIFY2(named(name)->isEnabled(), name);
    clickAtRest(named(name));
}

Tick ScanScreenFixture::tick(const char* name) const
{
    QQuickItem* item = row(name);
    if (item == nullptr)
        return Tick::None;
    return QAccessible::queryAccessibleInterface(item)->state().checked ? Tick::On : Tick::Off;
}

void ScanScreenFixture::pressRow(const char* name) const
{
    QTRY_VERIFY2(row(name), name);
    clickAtRest(row(name));
}

void ScanScreenFixture::pressHeading(const char* category) const
{
    QTRY_VERIFY2(heading(category), category);
    clickAtRest(heading(category));
}

void ScanScreenFixture::key(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(window(), key, modifiers);
}

void ScanScreenFixture::hold(Qt::Key key, QWindow* other) const
{
    QWindow* target = other ? other : window();
    // Those that are not letters have a number beyond all letters.
    const QString text = key < 0x100 ? QString(QChar(key)) : QString();
    const auto send = [&](QEvent::Type type, bool repeated) {
        QKeyEvent event(type, key, Qt::NoModifier, text, repeated);
        QCoreApplication::sendEvent(target, &event);
    };
    send(QEvent::KeyPress, false);
    for (int repetition = 0; repetition < 4; ++repetition) {
        // A dialog that the press has opened is up by then.
        QTest::qWait(60);
        send(QEvent::KeyRelease, true);
        send(QEvent::KeyPress, true);
    }
    send(QEvent::KeyRelease, false);
}

void ScanScreenFixture::tabTo(const char* name) const
{
    for (int steps = 0; steps < 60; ++steps) {
        if (accessibleName(window()->activeFocusItem()) == utf8(name))
            return;
        key(Qt::Key_Tab);
    }
    QFAIL(qPrintable(utf8("Tab does not lead to ") + utf8(name)));
}

void ScanScreenFixture::makeCaches() const
{
    writeFile(home() / "Library/Caches/org.example.maps/tiles/1.png", std::size_t{ 900'000 });
    writeFile(home() / "Library/Caches/org.example.mail/index", std::size_t{ 400'000 });
    writeFile(home() / "Library/Caches/com.apple.thumbnails/db", std::size_t{ 200'000 });
    writeFile(home() / "Library/Logs/example.log", std::size_t{ 100'000 });
}

void ScanScreenFixture::scan() const
{
    press("System Junk");
    press("Start Scan");
    QTRY_VERIFY(named("Clean"));
}

QQuickItem* ScanScreenFixture::row(const char* name) const
{
    return checkBoxIn(window()->contentItem(), "QQuickCheckDelegate", utf8(name));
}

QQuickItem* ScanScreenFixture::heading(const char* category) const
{
    return checkBoxIn(window()->contentItem(), "QQuickCheckBox", utf8(category));
}

} // namespace Korvane
