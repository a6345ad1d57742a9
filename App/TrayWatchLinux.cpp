// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/TrayWatch.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QTimer>

#include <chrono>
#include <utility>

namespace Korvane {

namespace {

/// A panel that is started anew has its tray back well before.
constexpr auto timeToComeBack = std::chrono::seconds(3);

/// Its name on the bus, and that of its interface.
const QString service = QStringLiteral("org.kde.StatusNotifierWatcher");

/// The X11 protocol's number of the event that tells of a destroyed window.
constexpr int destroyNotify = 17;

/// Trays are one of two kinds: windows of X11 that icons are put into, and a service on the session bus.
class LinuxTrayWatch final : public TrayWatch, private QAbstractNativeEventFilter {
public:
    explicit LinuxTrayWatch(std::function<void()> mayHaveGone)
        : m_watcher(service, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForUnregistration)
    {
        m_wait.setSingleShot(true);
        m_wait.setInterval(timeToComeBack);
        m_wait.callOnTimeout(std::move(mayHaveGone));
        QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, &m_wait, [this] { m_wait.start(); });
        // The service may go on without a panel that shows its icons.
        QDBusConnection::sessionBus().connect(service, QStringLiteral("/StatusNotifierWatcher"), service,
            QStringLiteral("StatusNotifierHostUnregistered"), &m_wait, SLOT(start()));
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) override
    {
        // The first byte of each event is its number; the highest bit says who sent it. The windows whose end is told
        // here are our own and that of the tray.
        if (eventType == "xcb_generic_event_t" && (*static_cast<const quint8*>(message) & 0x7f) == destroyNotify)
            m_wait.start();
        return false;
    }

    QDBusServiceWatcher m_watcher;
    QTimer m_wait;
};

} // namespace

std::unique_ptr<TrayWatch> TrayWatch::make(std::function<void()> mayHaveGone)
{
    return std::make_unique<LinuxTrayWatch>(std::move(mayHaveGone));
}

} // namespace Korvane
