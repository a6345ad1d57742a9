// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/CountingBytes.h"

#include "Core/Scanning/FormattedBytes.h"

namespace Korvane {

CountingBytes::CountingBytes(QObject* parent)
    : QObject(parent)
    , m_text(QString::fromStdString(formattedBytes(0)))
{
    m_counting.setDuration(0);
    m_counting.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_counting, &QVariantAnimation::valueChanged, this,
        [this](const QVariant& value) { show(static_cast<qint64>(value.toDouble())); });
    connect(&m_counting, &QVariantAnimation::finished, this, [this] { show(m_bytes); });
}

void CountingBytes::setBytes(double value)
{
    const auto bytes = static_cast<qint64>(value);
    if (m_hasValue && m_bytes == bytes)
        return;
    const bool counts = m_hasValue && m_counting.duration() > 0;
    const double from = m_counting.state() == QAbstractAnimation::Running ? m_counting.currentValue().toDouble()
                                                                          : static_cast<double>(m_bytes);
    m_hasValue = true;
    m_bytes = bytes;
    m_counting.stop();
    if (counts) {
        m_counting.setStartValue(from);
        m_counting.setEndValue(static_cast<double>(bytes));
        m_counting.start();
    } else {
        show(bytes);
    }
    Q_EMIT bytesChanged();
}

void CountingBytes::setDuration(int milliseconds)
{
    if (m_counting.duration() == milliseconds)
        return;
    m_counting.setDuration(milliseconds);
    Q_EMIT durationChanged();
}

QString CountingBytes::finalText() const { return QString::fromStdString(formattedBytes(m_bytes)); }

void CountingBytes::show(qint64 bytes)
{
    const QString text = QString::fromStdString(formattedBytes(bytes));
    if (m_text == text)
        return;
    m_text = text;
    Q_EMIT textChanged();
}

} // namespace Korvane
