// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace Korvane {

/// Hears of every text that is asked for and that no catalogue has, for as long as this lives.
///
/// Made before the catalogues are loaded, since the last that was loaded is asked first: what comes here has been
/// asked of all others in vain. Main thread.
class UntranslatedTexts : public QTranslator {
public:
    UntranslatedTexts();

    bool isEmpty() const override { return false; }
    /// Gives nothing, so that the text stays English.
    QString translate(const char* context, const char* source, const char* note, int count) const override;

    /// What has been heard of since the last call, each as "context: text".
    QStringList take();

private:
    mutable QStringList m_texts;
};

} // namespace Korvane
