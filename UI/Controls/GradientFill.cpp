// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Controls/GradientFill.h"

#include <QColor>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>

namespace Korvane {

GradientFill::GradientFill(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void GradientFill::setColors(const QVariantList& colors)
{
    if (m_colors == colors)
        return;
    m_colors = colors;
    update();
    Q_EMIT colorsChanged();
}

void GradientFill::setRadius(qreal radius)
{
    if (qFuzzyCompare(m_radius, radius))
        return;
    m_radius = radius;
    update();
    Q_EMIT radiusChanged();
}

void GradientFill::paint(QPainter* painter)
{
    if (m_colors.isEmpty())
        return;
    const QRectF area = boundingRect();
    const bool mirrored = QGuiApplication::layoutDirection() == Qt::RightToLeft;
    QLinearGradient gradient(
        mirrored ? area.topRight() : area.topLeft(), mirrored ? area.bottomLeft() : area.bottomRight());
    const qreal last = static_cast<qreal>(qMax<qsizetype>(1, m_colors.size() - 1));
    for (qsizetype index = 0; index < m_colors.size(); ++index)
        gradient.setColorAt(static_cast<qreal>(index) / last, m_colors.at(index).value<QColor>());
    painter->setPen(Qt::NoPen);
    painter->setBrush(gradient);
    if (m_radius > 0)
        painter->drawRoundedRect(area, m_radius, m_radius);
    else
        painter->drawRect(area);
}

} // namespace Korvane
