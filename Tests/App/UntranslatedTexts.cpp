// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/App/UntranslatedTexts.h"

#include <QCoreApplication>

#include <utility>

namespace Korvane {

UntranslatedTexts::UntranslatedTexts() { QCoreApplication::installTranslator(this); }

QString UntranslatedTexts::translate(const char* context, const char* source, const char*, int) const
{
    m_texts.append(QString::fromUtf8(context) + QLatin1String(": ") + QString::fromUtf8(source));
    return {};
}

QStringList UntranslatedTexts::take() { return std::exchange(m_texts, {}); }

} // namespace Korvane
