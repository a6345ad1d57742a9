// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QQuickItem>
#include <QString>

namespace Korvane {

/// Shows one symbol of the family in one colour, sharp at every screen density.
///
/// Its implicit size is `size` in both directions. A decoration: it has no accessible name of its own.
class Symbol : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged FINAL)

public:
    explicit Symbol(QQuickItem* parent = nullptr);

    QString name() const { return m_name; }
    void setName(const QString& name);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

    /// Width and height in device-independent pixels; 16 until set.
    qreal size() const { return m_size; }
    void setSize(qreal size);

Q_SIGNALS:
    void nameChanged();
    void colorChanged();
    void sizeChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    void redraw();

    QString m_name;
    QColor m_color = Qt::black;
    qreal m_size = 16;
    bool m_stale = true;
};

} // namespace Korvane
