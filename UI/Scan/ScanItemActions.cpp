// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanItemActions.h"

#include "Platform/DisplayText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <utility>

namespace Korvane {

ScanItemActions::ScanItemActions(const ScanResultsModel& rows, std::shared_ptr<Workspace> workspace, QObject* parent)
    : QObject(parent)
    , m_rows(rows)
    , m_workspace(std::move(workspace))
{
}

bool ScanItemActions::showInFileManager(const QString& itemId) const
{
    const ScanItem* item = m_rows.item(itemId);
    return item && m_workspace->showInFileManager(item->url);
}

void ScanItemActions::copyPath(const QString& itemId) const
{
    const ScanItem* item = m_rows.item(itemId);
    if (!item)
        return;
    const std::string& bytes = item->url.native();
    const QByteArray address = "file://" + QByteArray::fromStdString(bytes).toPercentEncoding("/");
    auto* data = new QMimeData; // The clipboard owns it.
    data->setData(QStringLiteral("text/uri-list"), address + "\r\n");
    data->setText(isValidUtf8(bytes) ? QString::fromStdString(bytes) : QString::fromLatin1(address));
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace Korvane
