// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSDevice.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <vector>

namespace Korvane {

/// The devices on the cable, as the rows of a list. Main thread.
class DeviceListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a device view model")

public:
    enum Role {
        NameRole = Qt::UserRole,
        VersionRole, ///< "iOS 17.4.1"
        UsedFractionRole, ///< Of its storage, from 0 to 1; 0 where the capacity is unknown.
        StorageRole, ///< The same in words; empty where the capacity is unknown.
        UsedRole, ///< Formatted, as the next.
        FreeRole,
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    void setDevices(std::vector<IOSDevice> devices);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<IOSDevice> m_devices;
};

} // namespace Korvane
