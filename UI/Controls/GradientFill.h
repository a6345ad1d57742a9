// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQuickPaintedItem>
#include <QVariantList>

namespace Korvane {

/// A rounded rectangle filled with colours that run from its top leading to its bottom trailing corner.
class GradientFill : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// The colours in equal steps; one of Theme's gradients.
    Q_PROPERTY(QVariantList colors READ colors WRITE setColors NOTIFY colorsChanged FINAL)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)

public:
    explicit GradientFill(QQuickItem* parent = nullptr);

    QVariantList colors() const { return m_colors; }
    void setColors(const QVariantList& colors);

    qreal radius() const { return m_radius; }
    void setRadius(qreal radius);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void colorsChanged();
    void radiusChanged();

private:
    QVariantList m_colors;
    qreal m_radius = 0;
};

} // namespace Korvane
