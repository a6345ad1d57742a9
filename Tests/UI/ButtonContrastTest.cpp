// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/Contrast.h"
#include "Tests/UI/Support/LoadedWindow.h"
#include "Tests/UI/Support/QmlWarnings.h"
#include "UI/Appearance.h"

#include <QQmlListReference>
#include <QQuickItem>
#include <QTest>

#include <memory>

using namespace Korvane;

namespace {

constexpr double forText = 4.5;
constexpr double forSigns = 3;

/// A window with one button of each kind, and all that they can lie on.
const QByteArray qml = R"(
import QtQuick
import Korvane.UI

Window {
    id: window

    property QtObject theme: Theme
    property QtObject appearance: Appearance
    property list<Item> buttons: [plain, prominent, running, destructive, borderless, quiet, removing]

    width: 700
    height: 100
    visible: true
    color: Theme.window

    Row {
        Button { id: plain; objectName: "plain"; text: "Words" }
        Button { id: prominent; objectName: "prominent"; kind: Button.Prominent; text: "Words" }
        Button { id: running; objectName: "running"; kind: Button.Prominent; tint: Theme.greenFill; text: "Words" }
        Button { id: destructive; objectName: "destructive"; kind: Button.Destructive; text: "Words" }
        Button { id: borderless; objectName: "borderless"; kind: Button.Borderless; text: "Words" }
        Button { id: quiet; objectName: "quiet"; kind: Button.Borderless; text: "Words"; ink: Theme.secondaryLabel }
        RemoveButton { id: removing; objectName: "removing" }
    }
}
)";

} // namespace

/// Buttons of every kind, at rest, under the pointer and pressed, in all four appearances: what is on them reaches the
/// contrast that the Web Content Accessibility Guidelines 2.1 ask for (1.4.3, 1.4.11), wherever they lie.
class ButtonContrastTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyStateCanBeRead_data();
    void everyStateCanBeRead();

private:
    QQuickWindow* window() const { return m_loaded->window(); }
    QColor themed(const char* name) const { return m_theme->property(name).value<QColor>(); }
    QList<QColor> groundsOf(const QQuickItem* button) const;
    void verify(const QQuickItem* button, const char* state) const;

    QmlWarnings m_warnings;
    std::unique_ptr<LoadedWindow> m_loaded;
    QObject* m_theme = nullptr;
};

void ButtonContrastTest::init()
{
    m_loaded = std::make_unique<LoadedWindow>(qml);
    QVERIFY2(window(), qPrintable(m_loaded->errors()));
    m_theme = m_loaded->property<QObject*>("theme");
    QVERIFY(QTest::qWaitForWindowExposed(window()));
}

void ButtonContrastTest::cleanup()
{
    m_loaded.reset();
    QCOMPARE(m_warnings.texts(), QStringList());
}

void ButtonContrastTest::everyStateCanBeRead_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("highContrast");
    QTest::newRow("light") << false << false;
    QTest::newRow("light, high contrast") << false << true;
    QTest::newRow("dark") << true << false;
    QTest::newRow("dark, high contrast") << true << true;
}

QList<QColor> ButtonContrastTest::groundsOf(const QQuickItem* button) const
{
    // It is in a row of a card, which the pointer lights up as well.
    if (button->objectName() == QStringLiteral("removing"))
        return { themed("card"), over(themed("hoverFill"), themed("card")) };
    QList<QColor> grounds{ over(themed("warningFill"), themed("window")) };
    for (const char* name : { "window", "sidebar", "card", "elevated" })
        grounds.append(themed(name));
    return grounds;
}

void ButtonContrastTest::verify(const QQuickItem* button, const char* state) const
{
    const double least = button->property("text").toString().isEmpty() ? forSigns : forText;
    const auto ink = button->property("ink").value<QColor>();
    const bool isAtRest = !button->property("down").toBool() && !button->property("hovered").toBool();
    for (const QColor& ground : groundsOf(button)) {
        QColor fill = over(button->property("fill").value<QColor>(), ground);
        if (!isAtRest)
            fill = over(button->property("stateFill").value<QColor>(), fill);
        const double reached = contrast(over(ink, fill), fill);
        QVERIFY2(reached >= least,
            qPrintable(QStringLiteral("%1, %2, on %3 reaches %4")
                           .arg(button->objectName(), QLatin1String(state), ground.name())
                           .arg(reached)));
    }
}

void ButtonContrastTest::everyStateCanBeRead()
{
    QFETCH(const bool, dark);
    QFETCH(const bool, highContrast);
    auto* appearance = qobject_cast<Appearance*>(m_loaded->property<QObject*>("appearance"));
    QVERIFY(appearance != nullptr);
    appearance->setDark(dark);
    appearance->setHighContrast(highContrast);
    const QPoint nowhere(window()->width() - 2, window()->height() - 2);
    const QQmlListReference buttons(window(), "buttons");
    QCOMPARE(buttons.count(), 7);
    for (qsizetype i = 0; i < buttons.count(); ++i) {
        auto* button = qobject_cast<QQuickItem*>(buttons.at(i));
        const QPoint place = button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint();
        QTest::mouseMove(window(), nowhere);
        QTRY_VERIFY(!button->property("hovered").toBool());
        verify(button, "at rest");
        QTest::mouseMove(window(), place);
        QTRY_VERIFY(button->property("hovered").toBool());
        verify(button, "under the pointer");
        QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, place);
        QTRY_VERIFY(button->property("down").toBool());
        verify(button, "pressed");
        QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, place);
        QTRY_VERIFY(!button->property("down").toBool());
    }
}

QTEST_MAIN(ButtonContrastTest)
#include "ButtonContrastTest.moc"
