// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Workspace.h"
#include "UI/Scan/ScanResultsModel.h"

#include <QObject>
#include <QtQmlIntegration>

#include <memory>

namespace Korvane {

/// What can be done with a single found item besides cleaning it. Main thread.
class ScanItemActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a scan view model")

public:
    /// `rows` must live as long as the actions.
    ScanItemActions(const ScanResultsModel& rows, std::shared_ptr<Workspace> workspace, QObject* parent = nullptr);

    /// Shows an item in the file manager; false when the desktop has none, or the item is not among the findings.
    Q_INVOKABLE bool showInFileManager(const QString& itemId) const;

    /// Puts an item's path on the clipboard: byte for byte as an address ("text/uri-list"), and as text; a path that
    /// is not UTF-8 has its address as text too, because nothing else would name the same file.
    Q_INVOKABLE void copyPath(const QString& itemId) const;

private:
    const ScanResultsModel& m_rows;
    std::shared_ptr<Workspace> m_workspace;
};

} // namespace Korvane
