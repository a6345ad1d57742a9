// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>
#include <QVariantAnimation>
#include <QtQmlIntegration>

namespace Korvane {

/// A byte count as a text that counts up or down to each new value.
///
/// Main thread. The first value is shown at once; nothing runs between changes.
class CountingBytes : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double bytes READ bytes WRITE setBytes NOTIFY bytesChanged)
    Q_PROPERTY(int duration READ duration WRITE setDuration NOTIFY durationChanged)
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    Q_PROPERTY(QString finalText READ finalText NOTIFY bytesChanged)

public:
    explicit CountingBytes(QObject* parent = nullptr);

    double bytes() const { return static_cast<double>(m_bytes); }
    void setBytes(double bytes);

    /// How long a change takes, in milliseconds; 0 for no counting.
    int duration() const { return m_counting.duration(); }
    void setDuration(int milliseconds);

    /// What is to be shown now.
    QString text() const { return m_text; }
    /// What will be shown when the counting has ended.
    QString finalText() const;

Q_SIGNALS:
    void bytesChanged();
    void durationChanged();
    void textChanged();

private:
    void show(qint64 bytes);

    QVariantAnimation m_counting;
    QString m_text;
    qint64 m_bytes = 0;
    bool m_hasValue = false;
};

} // namespace Korvane
