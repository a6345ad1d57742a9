// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace Korvane {

/// The language that the application speaks, for as long as this lives: its own texts, those of Qt where they
/// are embedded or installed, and the direction of its windows.
///
/// Main thread. Made once, after the QApplication and before anything that has a text, and destroyed before it.
class Languages {
public:
    /// Speaks the first of these languages that there is a catalogue for, or English. They are named as
    /// QLocale::uiLanguages names them, the most wanted first.
    explicit Languages(const QStringList& wanted);
    ~Languages();
    Languages(const Languages&) = delete;
    Languages& operator=(const Languages&) = delete;

    /// The names of the languages that there are catalogues for, as in "de" and "zh_CN".
    static QStringList available();
    /// Which of the available languages is spoken where these are wanted; empty for English, of which there is none.
    static QString chosen(const QStringList& wanted, const QStringList& available);

    /// The name of the language that is spoken; empty for English.
    const QString& name() const { return m_name; }

private:
    QString m_name;
    QTranslator m_own;
    QTranslator m_qt;
};

} // namespace Korvane
