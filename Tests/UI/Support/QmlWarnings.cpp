// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/QmlWarnings.h"

#include <QMutex>
#include <QtGlobal>

namespace Korvane {

namespace {

QMutex mutex;
QStringList collected;
QtMessageHandler former = nullptr;

// What the platform plugin without a screen says of itself, not of us.
bool isOfThePlugin(const QString& text)
{
    return text.contains(QStringLiteral("systemTrayWindowChanged"))
        || text.contains(QStringLiteral("This plugin does not support"));
}

void collect(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if ((type == QtWarningMsg || type == QtCriticalMsg) && !isOfThePlugin(text)) {
        const QMutexLocker lock(&mutex);
        collected.append(text);
    }
    former(type, context, text);
}

} // namespace

QmlWarnings::QmlWarnings()
{
    collected.clear();
    // A set-up that failed may have left one that still collects.
    const QtMessageHandler handler = qInstallMessageHandler(collect);
    former = handler == collect ? former : handler;
}

QmlWarnings::~QmlWarnings() { qInstallMessageHandler(former); }

QStringList QmlWarnings::texts() const
{
    const QMutexLocker lock(&mutex);
    return collected;
}

} // namespace Korvane
