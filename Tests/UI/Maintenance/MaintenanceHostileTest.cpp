// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/MaintenanceScreenFixture.h"

#include <QTest>

#include <algorithm>
#include <string>

using namespace Korvane;

/// What others wrote, however long and however much of it, on the page of maintenance.
class MaintenanceHostileTest : public MaintenanceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void showsTheBeginningOfALongLabel();
    void paintsNothingAsLargeAsManyAgents();
    void showsOneLineOfWhatWentWrong();
    void saysThatATaskFailedWithoutAWord();
};

namespace {

/// The height of the highest item of this class that is painted in memory of its own.
qreal highest(const QQuickItem* item, const char* kind)
{
    qreal height = item->inherits(kind) ? item->height() : 0;
    for (const QQuickItem* child : item->childItems())
        height = std::max(height, highest(child, kind));
    return height;
}

/// The text that begins so; null when there is none.
const QQuickItem* textItem(const QQuickItem* item, const QString& beginning)
{
    if (item->inherits("QQuickText") && item->isVisible() && item->property("text").toString().startsWith(beginning))
        return item;
    for (const QQuickItem* child : item->childItems()) {
        if (const QQuickItem* found = textItem(child, beginning))
            return found;
    }
    return nullptr;
}

} // namespace

void MaintenanceHostileTest::showsTheBeginningOfALongLabel()
{
    const std::string label(900'000, 'w');
    writeFile(userAgents() / "long.plist",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>Label</key><string>" + label
            + "</string><key>Program</key><string>/" + std::string(80'000, 'p') + "</string></dict></plist>\n");
    press("Maintenance");
    QTRY_VERIFY(shows("Background Items (1)"));
    const QString shown = QString(159, QLatin1Char('w')) + QChar(0x2026);
    QTRY_VERIFY(trashButton(qPrintable(shown)));
    for (const QString& text : visibleTexts(window()))
        QVERIFY2(text.size() <= 512, qPrintable(text.left(80)));
    click(trashButton(qPrintable(shown)));
    QTRY_VERIFY(named("Move to Trash"));
    QQuickItem* confirm = named("Move to Trash");
    QTRY_VERIFY(confirm->mapToScene(QPointF(0, confirm->height())).y() <= window()->height());
    press("Move to Trash");
    QTRY_VERIFY(shows("Background Items (0)"));
    QVERIFY(isInTestTrash(m_test->host.environment, "long.plist"));
}

void MaintenanceHostileTest::paintsNothingAsLargeAsManyAgents()
{
    for (int i = 0; i < 3000; ++i)
        install(userAgents(), "org.example.agent" + std::to_string(i));
    press("Maintenance");
    QTRY_VERIFY(shows("Background Items (3000)"));
    QTRY_VERIFY(agentRow("org.example.agent0"));
    const qreal painted = highest(window()->contentItem(), "QQuickPaintedItem");
    QVERIFY2(painted > 0 && painted <= 2 * window()->height(), qPrintable(QString::number(painted)));
}

void MaintenanceHostileTest::showsOneLineOfWhatWentWrong()
{
    const StandInInterpreter interpreter = this->interpreter();
    interpreter.tell("purge", "printf 'broken\\ntwo\\n' >&2; head -c 50000 /dev/zero | tr '\\0' e >&2; exit 1");
    press("Maintenance");
    pressRun(0);
    QTRY_VERIFY(runButton(0)->isEnabled());
    const auto message = [&] { return textItem(window()->contentItem(), QStringLiteral("broken")); };
    QTRY_VERIFY(message());
    QCOMPARE(message()->property("lineCount").toInt(), 1);
    QVERIFY(message()->property("text").toString().size() <= 1024);
}

void MaintenanceHostileTest::saysThatATaskFailedWithoutAWord()
{
    const StandInInterpreter interpreter = this->interpreter();
    interpreter.tell("purge", "exit 1");
    press("Maintenance");
    pressRun(0);
    QTRY_VERIFY(!interpreter.process("purge").empty() && runButton(0)->isEnabled());
    QVERIFY(!shows("Done"));
    interpreter.tell("purge", "exit 0");
    pressRun(0);
    QTRY_VERIFY(shows("Done"));
}

QTEST_MAIN(MaintenanceHostileTest)
#include "MaintenanceHostileTest.moc"
