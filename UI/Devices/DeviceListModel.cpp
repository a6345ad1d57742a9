// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Devices/DeviceListModel.h"

#include "UI/Devices/DeviceTexts.h"

#include <utility>

namespace Korvane {

void DeviceListModel::setDevices(std::vector<IOSDevice> devices)
{
    // Rows that say the same stay as they are.
    if (devices == m_devices)
        return;
    beginResetModel();
    m_devices = std::move(devices);
    endResetModel();
}

int DeviceListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_devices.size());
}

QVariant DeviceListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const IOSDevice& device = m_devices[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return DeviceTexts::name(device.name);
    case VersionRole:
        return DeviceTexts::version(device.productVersion);
    case UsedFractionRole:
        return DeviceTexts::usedFraction(device);
    case StorageRole:
        return DeviceTexts::storage(device);
    case UsedRole:
        return DeviceTexts::size(device.usedBytes());
    case FreeRole:
        return DeviceTexts::size(device.freeBytes);
    default:
        return {};
    }
}

QHash<int, QByteArray> DeviceListModel::roleNames() const
{
    return { { NameRole, "name" }, { VersionRole, "version" }, { UsedFractionRole, "usedFraction" },
        { StorageRole, "storage" }, { UsedRole, "used" }, { FreeRole, "free" } };
}

} // namespace Korvane
