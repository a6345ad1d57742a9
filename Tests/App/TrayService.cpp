// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/App/TrayService.h"

#include "Tests/Support/FileAppears.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QStandardPaths>
#include <QTest>

namespace Korvane {

namespace {

const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
const QString itemPath = QStringLiteral("/StatusNotifierItem");
const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
const QString menuInterface = QStringLiteral("com.canonical.dbusmenu");

/// In milliseconds; for programs on a machine that is busy with other tests.
constexpr int longEnough = 30'000;

/// A bus that starts nothing by itself: what is on it is what the test puts there.
std::string configuration(const std::filesystem::path& socket)
{
    return "<busconfig><type>session</type><listen>unix:path=" + socket.native()
        + "</listen><auth>EXTERNAL</auth><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
          "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>";
}

std::unique_ptr<ChildProgram> run(const char* role)
{
    return std::make_unique<ChildProgram>(std::vector<std::string>{ KORVANE_TRAY_SERVICE, role });
}

/// Asks as the desktop does, on a connection that is not the application's. The application answers on this very
/// thread, which therefore goes on with its events.
QDBusMessage ask(const QDBusMessage& question)
{
    const QDBusConnection desktop
        = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("desktop"));
    const QDBusPendingCall call = desktop.asyncCall(question, longEnough);
    if (!QTest::qWaitFor([&] { return call.isFinished(); }, longEnough))
        qFatal("no answer on the bus");
    return call.reply();
}

QVariant property(const QString& service, const QString& path, const QString& interface, const QString& name)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << interface << name;
    return ask(question).arguments().value(0).value<QDBusVariant>().variant();
}

/// Of pictures, each of which is as large as it says.
QList<QSize> readSizes(const QDBusArgument& pictures)
{
    QList<QSize> sizes;
    pictures.beginArray();
    while (!pictures.atEnd()) {
        QSize size;
        QByteArray pixels;
        pictures.beginStructure();
        pictures >> size.rwidth() >> size.rheight() >> pixels;
        pictures.endStructure();
        if (pixels.size() == qsizetype{ 4 } * size.width() * size.height())
            sizes.append(size);
    }
    pictures.endArray();
    return sizes;
}

/// A line of a menu and what lies beneath it, without what is hidden.
void collect(const QDBusArgument& line, QList<TrayService::Line>& lines)
{
    int id = 0;
    QVariantMap properties;
    QVariantList children;
    line.beginStructure();
    line >> id >> properties >> children;
    line.endStructure();
    // The first is the menu itself.
    if (id != 0 && properties.value(QStringLiteral("visible"), true).toBool())
        lines.append({ id, properties.value(QStringLiteral("label")).toString(),
            properties.value(QStringLiteral("enabled"), true).toBool() });
    for (const QVariant& child : children)
        collect(child.value<QDBusArgument>(), lines);
}

} // namespace

TrayService::TrayService()
{
    const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (daemon.isEmpty()) {
        m_obstacle = QStringLiteral("dbus-daemon is not installed");
        return;
    }
    const auto socket = m_folder / "bus";
    writeFile(m_folder / "bus.conf", configuration(socket));
    m_bus = std::make_unique<ChildProgram>(std::vector<std::string>{
        daemon.toStdString(), "--nofork", "--nosyslog", "--config-file=" + (m_folder / "bus.conf").native() });
    if (!appears(socket))
        qFatal("dbus-daemon makes no bus");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QByteArray::fromStdString(socket.native()));
}

void TrayService::start()
{
    m_service = run("watcher");
    const auto isThere
        = [] { return property(watcher, watcherPath, watcher, QStringLiteral("ProtocolVersion")).isValid(); };
    if (!QTest::qWaitFor(isThere, longEnough))
        qFatal("the service of the tray does not come");
    startPanel();
}

void TrayService::crash()
{
    m_panel.reset();
    m_service.reset();
}

void TrayService::startPanel()
{
    m_panel = run("panel");
    if (!QTest::qWaitFor([] { return hasPanel(); }, longEnough))
        qFatal("the panel does not come");
}

bool TrayService::hasPanel()
{
    return property(watcher, watcherPath, watcher, QStringLiteral("IsStatusNotifierHostRegistered")).toBool();
}

QStringList TrayService::icons()
{
    return property(watcher, watcherPath, watcher, QStringLiteral("RegisteredStatusNotifierItems")).toStringList();
}

QVariant TrayService::told(const char* name)
{
    return property(icons().value(0), itemPath, itemInterface, QString::fromLatin1(name));
}

QString TrayService::toolTip()
{
    const auto told = TrayService::told("ToolTip").value<QDBusArgument>();
    QString iconName;
    QString title;
    QString text;
    told.beginStructure();
    told >> iconName;
    readSizes(told);
    told >> title >> text;
    told.endStructure();
    return title;
}

QList<QSize> TrayService::iconSizes() { return readSizes(told("IconPixmap").value<QDBusArgument>()); }

bool TrayService::press(const char* how)
{
    QDBusMessage question
        = QDBusMessage::createMethodCall(icons().value(0), itemPath, itemInterface, QString::fromLatin1(how));
    question << 0 << 0;
    return ask(question).type() == QDBusMessage::ReplyMessage;
}

QList<TrayService::Line> TrayService::openMenu()
{
    const QString icon = icons().value(0);
    const QString path = told("Menu").value<QDBusObjectPath>().path();
    QDBusMessage opens = QDBusMessage::createMethodCall(icon, path, menuInterface, QStringLiteral("AboutToShow"));
    opens << 0;
    ask(opens);
    QDBusMessage asks = QDBusMessage::createMethodCall(icon, path, menuInterface, QStringLiteral("GetLayout"));
    asks << 0 << -1 << QStringList();
    QList<Line> lines;
    collect(ask(asks).arguments().value(1).value<QDBusArgument>(), lines);
    return lines;
}

QStringList TrayService::menuTexts()
{
    QStringList texts;
    for (const Line& line : openMenu()) {
        if (!line.text.isEmpty())
            texts.append(line.text);
    }
    return texts;
}

bool TrayService::choose(const QString& text)
{
    for (const Line& line : openMenu()) {
        if (line.text != text || !line.isEnabled)
            continue;
        QDBusMessage chosen = QDBusMessage::createMethodCall(
            icons().value(0), told("Menu").value<QDBusObjectPath>().path(), menuInterface, QStringLiteral("Event"));
        chosen << line.id << QStringLiteral("clicked") << QVariant::fromValue(QDBusVariant(0)) << 0U;
        return ask(chosen).type() == QDBusMessage::ReplyMessage;
    }
    return false;
}

} // namespace Korvane
