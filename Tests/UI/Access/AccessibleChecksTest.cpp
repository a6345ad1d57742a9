// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/AccessibleChecks.h"
#include "UI/Controls/ScreenReader.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include <memory>

using namespace Korvane;

namespace {

/// A window in which nothing is wrong.
const QString sound = QStringLiteral(R"(
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window

Window {
    id: window
    width: 400
    height: 300
    visible: true

    component Push: T.Button {
        id: push
        width: 100
        height: 30
        focusPolicy: Qt.StrongFocus
        Accessible.onPressAction: push.clicked()
        background: Rectangle {
            border.width: push.visualFocus ? 3 : 0
            border.color: "blue"
        }
    }
    Text {
        text: "Title"
        font.pixelSize: 20
        font.weight: Font.Bold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Push {
        y: 40
        Accessible.name: "First"
    }
    Push {
        x: 150
        y: 40
        Accessible.name: "Second"
    }
    Item {
        id: row
        y: 90
        width: 300
        height: 30
        activeFocusOnTab: true
        Accessible.role: Accessible.ListItem
        Accessible.name: "Third"
        Accessible.description: "Something"
        Rectangle {
            anchors.fill: parent
            border.width: row.activeFocus ? 3 : 0
        }
        Text {
            x: 10
            y: 5
            text: "Something"
        }
    }
    T.CheckBox {
        id: box
        y: 140
        width: 100
        height: 30
        tristate: true
        checkState: Qt.PartiallyChecked
        focusPolicy: Qt.StrongFocus
        Accessible.name: "Fourth"
        Accessible.checkable: true
        Accessible.checkStateMixed: box.checkState === Qt.PartiallyChecked
        Accessible.onPressAction: box.clicked()
        indicator: Rectangle {
            width: 30
            height: 30
            border.width: box.visualFocus ? 4 : 1
        }
    }
    T.ProgressBar {
        y: 190
        width: 100
        height: 10
        value: 0.5
        Accessible.name: "Space"
        Accessible.description: "half of it"
    }
    Image {
        y: 210
        width: 10
        height: 10
    }
})");

} // namespace

/// That the checks see what is wrong.
class AccessibleChecksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QAccessible::setActive(true);
        ScreenReader::install();
    }
    void seesWhatIsWrong_data();
    void seesWhatIsWrong();
};

void AccessibleChecksTest::seesWhatIsWrong_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("instead");
    QTest::addColumn<QString>("problem");
    const QByteArray backwards = "Item { y: 20; Accessible.role: Accessible.List; Accessible.name: \"All\"; "
                                 "Text { z: 1; y: 20; text: \"Low\"; Accessible.name: text } "
                                 "Text { y: 0; text: \"High\"; Accessible.name: text } }";
    const auto add = [](const char* title, const char* what, const char* instead, const char* problem) {
        QTest::newRow(title) << QString::fromUtf8(what) << QString::fromUtf8(instead) << QString::fromUtf8(problem);
    };
    add("nothing", "", "", "");
    add("no name", "name: \"First\"", "name: \"\"", "has no name");
    add("a name twice", "name: \"First\"", "name: \"Second\"", "sounds like another one");
    add("a role that is none", "Accessible.ListItem", "Accessible.Graphic", "has a role that does not fit");
    add("no press", "Accessible.onPressAction: push.clicked()", "", "cannot be pressed");
    add("no mixed state", "Accessible.checkStateMixed: box", "property bool mixed: box", "mixed as it is");
    add("no checkable state", "Accessible.checkable: true", "", "is not told to be checkable");
    add("a text that is not read", "Accessible.description: \"Something\"", "", "can be seen and not read: Something");
    add("a title that is none", "Accessible.Heading", "Accessible.StaticText", "looks like a heading");
    add("a bar without a value", "T.ProgressBar {",
        "Item { property real value; Accessible.role: Accessible.ProgressBar", "does not tell its value");
    add("an order against the places", "id: row\n", ("id: row\n" + backwards).constData(),
        "is read after what is below it");
    add("something behind a dialog", "id: row\n",
        "id: row; Item { Accessible.role: Accessible.Dialog; Accessible.name: \"Asks\" }\n",
        "can be reached behind a dialog");
    add("a decoration that is read", "Image {", "Image { Accessible.role: Accessible.Graphic", "is a decoration");
    add("a dialog beside the keyboard", "id: row",
        "id: row; Item { Accessible.role: Accessible.Dialog; "
        "Accessible.name: \"Asks\" }",
        "does not hold the keyboard");
    add("an order against reading", "x: 150\n        y: 40", "x: 150\n        y: 240",
        "Tab does not lead on as one reads");
    add("a trap", "id: row", "id: row; Keys.onTabPressed: {}", "Tab does not lead to");
    add("another way back", "id: row", "id: row; KeyNavigation.backtab: box", "Shift and Tab lead another way");
    add("no ring", "row.activeFocus ? 3 : 0", "0", "does not show that it has the keyboard");
}

void AccessibleChecksTest::seesWhatIsWrong()
{
    QFETCH(QString, what);
    QFETCH(QString, instead);
    QFETCH(QString, problem);
    QString broken = sound;
    if (!what.isEmpty()) {
        QCOMPARE(sound.count(what), 1);
        broken.replace(what, instead);
    }
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(broken.toUtf8(), QUrl());
    const std::unique_ptr<QObject> object(component.create());
    auto* window = qobject_cast<QQuickWindow*>(object.get());
    QVERIFY2(window != nullptr, qPrintable(component.errorString()));
    QVERIFY(QTest::qWaitForWindowExposed(window));
    window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(window));
    const QStringList problems = accessibleProblems(window) + keyboardProblems(window);
    if (problem.isEmpty())
        QCOMPARE(problems, QStringList());
    else
        QVERIFY2(!problems.filter(problem).isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

QTEST_MAIN(AccessibleChecksTest)
#include "AccessibleChecksTest.moc"
