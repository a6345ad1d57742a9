// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The system tray of a desktop on its session bus, as far as an application sees it:
//
//   tray-service-stand-in watcher   keeps the list of the icons, as a background service of a desktop does
//   tray-service-stand-in panel     says that it shows them
//
// Runs until it is killed. The StatusNotifierItem description of freedesktop.org names what is called here.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusInterface>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>

#include <cstdio>

namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

/// What icons and panels register with.
class Watcher : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasPanel)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)

public:
    Watcher()
    {
        m_leaving.setConnection(QDBusConnection::sessionBus());
        m_leaving.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
        connect(&m_leaving, &QDBusServiceWatcher::serviceUnregistered, this, &Watcher::forget);
    }

    QStringList items() const { return m_items; }
    bool hasPanel() const { return !m_panels.isEmpty(); }
    int protocolVersion() const { return 0; }

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& service)
    {
        m_leaving.addWatchedService(message().service());
        m_items.append(service);
        Q_EMIT StatusNotifierItemRegistered(service);
    }
    Q_SCRIPTABLE void RegisterStatusNotifierHost(const QString&)
    {
        m_leaving.addWatchedService(message().service());
        m_panels.append(message().service());
        Q_EMIT StatusNotifierHostRegistered();
    }

Q_SIGNALS:
    Q_SCRIPTABLE void StatusNotifierItemRegistered(const QString& service);
    Q_SCRIPTABLE void StatusNotifierItemUnregistered(const QString& service);
    Q_SCRIPTABLE void StatusNotifierHostRegistered();
    Q_SCRIPTABLE void StatusNotifierHostUnregistered();

private:
    void forget(const QString& service)
    {
        m_leaving.removeWatchedService(service);
        if (m_items.removeAll(service) > 0)
            Q_EMIT StatusNotifierItemUnregistered(service);
        if (m_panels.removeAll(service) > 0)
            Q_EMIT StatusNotifierHostUnregistered();
    }

    QStringList m_items;
    QStringList m_panels;
    QDBusServiceWatcher m_leaving;
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QString role = QCoreApplication::arguments().value(1);
    QDBusConnection bus = QDBusConnection::sessionBus();
    Watcher watcher;
    bool isReady = false;
    if (role == QLatin1String("panel")) {
        QDBusInterface service(watcherService, watcherPath, watcherService, bus);
        const QDBusMessage answer = service.call(QStringLiteral("RegisterStatusNotifierHost"), bus.baseService());
        isReady = answer.type() == QDBusMessage::ReplyMessage;
    } else if (role == QLatin1String("watcher")) {
        isReady = bus.registerObject(watcherPath, &watcher,
                      QDBusConnection::ExportScriptableContents | QDBusConnection::ExportAllProperties)
            && bus.registerService(watcherService);
    }
    if (!isReady) {
        std::fprintf(stderr, "tray-service-stand-in %s: not on this bus\n", qPrintable(role));
        return EXIT_FAILURE;
    }
    return QCoreApplication::exec();
}

#include "TrayServiceProgram.moc"
