// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/MenuBarPanel.h"

#include "App/PanelPosition.h"

#include <QGuiApplication>
#include <QPainterPath>
#include <QQmlComponent>
#include <QRegion>
#include <QScreen>
#include <QUrl>

namespace Korvane {

namespace {

/// In milliseconds: a click on the icon takes the keyboard from the panel before the icon hears of it.
constexpr qint64 sameClick = 300;

} // namespace

MenuBarPanel::MenuBarPanel(QQmlEngine& engine, MenuBarViewModel& viewModel)
    : m_engine(engine)
    , m_viewModel(viewModel)
{
}

MenuBarPanel::~MenuBarPanel() = default;

void MenuBarPanel::toggle(const QRect& icon)
{
    if (m_window == nullptr)
        makeWindow();
    if (m_window == nullptr)
        return;
    if (m_window->isVisible() || (m_sinceLeft.isValid() && m_sinceLeft.elapsed() < sameClick)) {
        m_sinceLeft.invalidate();
        hide();
        return;
    }
    m_icon = icon;
    place();
    m_window->show();
    m_window->raise();
    m_window->requestActivate();
}

void MenuBarPanel::hide()
{
    if (m_window == nullptr)
        return;
    m_window->hide();
    m_viewModel.setShown(false);
}

void MenuBarPanel::makeWindow()
{
    QQmlComponent component(&m_engine, QUrl(QStringLiteral("qrc:/qt/qml/Korvane/UI/MenuBarView.qml")));
    QObject* made
        = component.createWithInitialProperties({ { QStringLiteral("viewModel"), QVariant::fromValue(&m_viewModel) } });
    m_window.reset(qobject_cast<QQuickWindow*>(made));
    if (m_window == nullptr)
        return;
    connect(m_window.get(), &QWindow::visibleChanged, &m_viewModel, &MenuBarViewModel::setShown);
    connect(m_window.get(), &QWindow::activeChanged, this, &MenuBarPanel::onActiveChanged);
    // It becomes larger and smaller with what it tells.
    connect(m_window.get(), &QWindow::widthChanged, this, &MenuBarPanel::place);
    connect(m_window.get(), &QWindow::heightChanged, this, &MenuBarPanel::place);
}

void MenuBarPanel::place()
{
    const QScreen* screen = QGuiApplication::screenAt(m_icon.center());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    if (screen != nullptr)
        m_window->setPosition(panelPosition(m_icon, m_window->size(), screen->availableGeometry()));
    cutToShape();
}

void MenuBarPanel::cutToShape()
{
    // Without a compositor what is transparent is black.
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    const qreal radius = m_window->property("radius").toReal();
    QPainterPath shape;
    shape.addRoundedRect(QRectF(QPointF(), QSizeF(m_window->size())), radius, radius);
    m_window->setMask(QRegion(shape.toFillPolygon().toPolygon()));
}

void MenuBarPanel::onActiveChanged()
{
    if (m_window->isActive() || !m_window->isVisible())
        return;
    m_sinceLeft.start();
    hide();
}

} // namespace Korvane
