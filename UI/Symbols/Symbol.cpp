// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Symbols/Symbol.h"

#include "UI/Symbols/SymbolImage.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>
#include <memory>

namespace Korvane {

namespace {

/// Whether a symbol shows the way that a person reads, and turns with it.
bool isMirrored(const QString& name)
{
    return name == QLatin1String("chevron.right") && QGuiApplication::layoutDirection() == Qt::RightToLeft;
}

} // namespace

Symbol::Symbol(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setImplicitSize(m_size, m_size);
}

void Symbol::setName(const QString& name)
{
    if (m_name == name)
        return;
    m_name = name;
    redraw();
    Q_EMIT nameChanged();
}

void Symbol::setColor(const QColor& color)
{
    if (m_color == color)
        return;
    m_color = color;
    redraw();
    Q_EMIT colorChanged();
}

void Symbol::setSize(qreal size)
{
    if (qFuzzyCompare(m_size, size))
        return;
    m_size = size;
    setImplicitSize(size, size);
    redraw();
    Q_EMIT sizeChanged();
}

void Symbol::redraw()
{
    m_stale = true;
    update();
}

void Symbol::itemChange(ItemChange change, const ItemChangeData& value)
{
    // Another window means another set of textures, another density another picture.
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        redraw();
    QQuickItem::itemChange(change, value);
}

QSGNode* Symbol::updatePaintNode(QSGNode* node, UpdatePaintNodeData*)
{
    std::unique_ptr<QSGNode> old(node);
    auto* image = static_cast<QSGImageNode*>(node);
    if (image == nullptr || m_stale) {
        const int pixels = static_cast<int>(std::lround(m_size * window()->effectiveDevicePixelRatio()));
        const QImage picture = symbolImage(m_name, pixels, m_color);
        if (picture.isNull()) {
            m_stale = false;
            return nullptr;
        }
        if (image == nullptr) {
            image = window()->createImageNode();
            old.reset(image);
            image->setOwnsTexture(true);
        }
        image->setTexture(window()->createTextureFromImage(picture, QQuickWindow::TextureHasAlphaChannel));
        image->setFiltering(QSGTexture::Linear);
        image->setTextureCoordinatesTransform(
            isMirrored(m_name) ? QSGImageNode::MirrorHorizontally : QSGImageNode::NoTransform);
        m_stale = false;
    }
    const qreal left = std::round((width() - m_size) / 2);
    const qreal top = std::round((height() - m_size) / 2);
    image->setRect(QRectF(left, top, m_size, m_size));
    return old.release();
}

} // namespace Korvane
