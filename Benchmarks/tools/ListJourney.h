// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Benchmarks/tools/WatchedApplication.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <QWheelEvent>

#include <cstdio>
#include <utility>
#include <vector>

namespace Korvane {

/// Goes through the list of a window with the keyboard and the wheel, each step when the window has settled after the
/// one before, prints the longest time that an event held the main thread for each, and then ends the program.
class ListJourney : public QObject {
public:
    struct Step {
        const char* name;
        Qt::Key key; ///< None turns the wheel over the list, downwards.
        int times;
        const char* text = ""; ///< What the key types.
    };

    ListJourney(QQuickWindow* window, WatchedApplication& application, std::vector<Step> steps)
        : m_window(window)
        , m_application(application)
        , m_steps(std::move(steps))
    {
        m_pace.setInterval(60);
        m_clock.start();
        connect(&m_pace, &QTimer::timeout, this, [this] { press(); });
    }

    /// Takes the first list that the keyboard comes to.
    void begin()
    {
        m_list = m_window->contentItem();
        do
            m_list = m_list->nextItemInFocusChain();
        while (!m_list->inherits("QQuickListView"));
        m_list->forceActiveFocus(Qt::TabFocusReason);
        m_pace.start();
    }

private:
    void press()
    {
        if (m_pressed == 0)
            m_application.restart();
        const Step& step = m_steps[m_step];
        if (m_pressed++ < step.times) {
            if (step.key == Qt::Key(0))
                turnWheel();
            else
                for (const auto type : { QEvent::KeyPress, QEvent::KeyRelease })
                    QCoreApplication::postEvent(
                        m_window, new QKeyEvent(type, step.key, Qt::NoModifier, QString::fromUtf8(step.text)));
            return;
        }
        m_application.report(step.name);
        std::printf("%-10s row %d of %d, at %.0f\n", "", m_list->property("currentIndex").toInt(),
            m_list->property("count").toInt(), m_list->property("contentY").toReal());
        m_pressed = 0;
        if (++m_step == m_steps.size())
            QCoreApplication::quit();
    }

    void turnWheel() const
    {
        const QPointF place = m_list->mapToScene(QPointF(m_list->width() / 2, m_list->height() / 2));
        auto* turn = new QWheelEvent(place, m_window->mapToGlobal(place), QPoint(), QPoint(0, -360), Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        // How far a turn scrolls depends on when the one before was.
        turn->setTimestamp(static_cast<quint64>(m_clock.msecsSinceReference() + m_clock.elapsed()));
        QCoreApplication::postEvent(m_window, turn);
    }

    QQuickWindow* m_window;
    QQuickItem* m_list = nullptr;
    WatchedApplication& m_application;
    std::vector<Step> m_steps;
    QTimer m_pace;
    QElapsedTimer m_clock;
    std::size_t m_step = 0;
    int m_pressed = 0;
};

} // namespace Korvane
