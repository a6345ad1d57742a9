// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/FullDiskAccessViewModel.h"

#include "Core/FullDiskAccess.h"

#include <QGuiApplication>

#include <utility>

namespace Korvane {

FullDiskAccessViewModel::FullDiskAccessViewModel(Host host, QObject* parent)
    : QObject(parent)
    , m_host(std::move(host))
    , m_granted(FullDiskAccess::isGranted(*m_host.files))
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &FullDiskAccessViewModel::refresh);
}

void FullDiskAccessViewModel::refresh()
{
    const bool granted = FullDiskAccess::isGranted(*m_host.files);
    if (granted == m_granted)
        return;
    m_granted = granted;
    Q_EMIT grantedChanged();
}

void FullDiskAccessViewModel::openSettings() const { FullDiskAccess::openSettings(*m_host.workspace); }

} // namespace Korvane
