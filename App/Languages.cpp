// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/Languages.h"

#include "Platform/Localized.h"
#include "Platform/UserLocale.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace Korvane {

namespace {

const auto folder = QStringLiteral(":/translations");
const auto prefix = QStringLiteral("korvane_");
const auto suffix = QStringLiteral(".qm");

/// The name that the catalogue of a language has. That of Chinese is the place whose script it is written in.
QString catalogueName(const QLocale& locale)
{
    if (locale.language() != QLocale::Chinese)
        return QLocale::languageToCode(locale.language());
    return locale.script() == QLocale::SimplifiedHanScript ? QStringLiteral("zh_CN") : QStringLiteral("zh_TW");
}

std::string translated(const char* context, const char* key, const char* note, int count)
{
    return QCoreApplication::translate(context, key, note, count).toStdString();
}

} // namespace

Languages::Languages(const QStringList& wanted)
    : m_name(chosen(wanted, available()))
{
    const bool speaks = !m_name.isEmpty() && m_own.load(prefix + m_name, folder);
    // Not the desktop's own: a window whose texts are English reads from left to right.
    const Qt::LayoutDirection direction = speaks ? QLocale(m_name).textDirection() : Qt::LeftToRight;
    if (speaks) {
        QCoreApplication::installTranslator(&m_own);
        setMessageCatalogue(
            translated, direction == Qt::RightToLeft ? TextDirection::rightToLeft : TextDirection::leftToRight);
        const QString qtName = QStringLiteral("qtbase_") + m_name;
        if (m_qt.load(qtName, folder) || m_qt.load(qtName, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(&m_qt);
    }
    setSpokenLanguage(speaks ? m_name.toStdString() : "en");
    QGuiApplication::setLayoutDirection(direction);
}

Languages::~Languages()
{
    setMessageCatalogue({});
    setSpokenLanguage({});
    QCoreApplication::removeTranslator(&m_qt);
    QCoreApplication::removeTranslator(&m_own);
}

QStringList Languages::available()
{
    QStringList names = QDir(folder).entryList({ prefix + QLatin1Char('*') + suffix }, QDir::Files, QDir::Name);
    for (QString& name : names)
        name = name.mid(prefix.size()).chopped(suffix.size());
    return names;
}

QString Languages::chosen(const QStringList& wanted, const QStringList& available)
{
    for (const QString& tag : wanted) {
        const QString exact = QString(tag).replace(QLatin1Char('-'), QLatin1Char('_'));
        if (available.contains(exact))
            return exact;
        const QLocale locale(tag);
        if (locale.language() == QLocale::English)
            return {};
        if (const QString name = catalogueName(locale); available.contains(name))
            return name;
    }
    return {};
}

} // namespace Korvane
