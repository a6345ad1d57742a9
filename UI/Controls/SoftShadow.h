// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace Korvane {

/// The soft shadow of a rounded rectangle. The item is the shadow with its blur; see `Card` for its placing.
class SoftShadow : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// The corner radius of what throws the shadow.
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY changed FINAL)
    /// How far the shadow reaches beyond what throws it, on each side.
    Q_PROPERTY(qreal blur READ blur WRITE setBlur NOTIFY changed FINAL)
    /// The colour at the darkest place.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed FINAL)

public:
    explicit SoftShadow(QQuickItem* parent = nullptr);

    qreal radius() const { return m_radius; }
    void setRadius(qreal radius);
    qreal blur() const { return m_blur; }
    void setBlur(qreal blur);
    QColor color() const { return m_color; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    void redraw();
    QImage smallest(qreal density) const;

    qreal m_radius = 0;
    qreal m_blur = 16;
    QColor m_color = QColor(0, 0, 0, 40);
};

} // namespace Korvane
