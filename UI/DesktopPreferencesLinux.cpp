// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/DesktopPreferences.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>

namespace Korvane {

namespace {

// The Settings interface of the XDG Desktop Portal, version 1, and the keys it documents.
const auto service = QStringLiteral("org.freedesktop.portal.Desktop");
const auto object = QStringLiteral("/org/freedesktop/portal/desktop");
const auto interface = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto colorScheme = QStringLiteral("color-scheme");
const auto contrast = QStringLiteral("contrast");
const auto gnomeInterface = QStringLiteral("org.gnome.desktop.interface");
const auto enableAnimations = QStringLiteral("enable-animations");

// Without a bus the library would start one, which takes long and serves nobody.
bool hasSessionBus()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")
        || (!runtime.isEmpty() && QFileInfo::exists(runtime + QStringLiteral("/bus")));
}

/// The settings as the desktop's portal tells them.
class PortalPreferences final : public DesktopPreferences {
    Q_OBJECT

public:
    PortalPreferences()
    {
        if (!hasSessionBus())
            return;
        QDBusConnection bus = QDBusConnection::sessionBus();
        if (!bus.isConnected())
            return;
        bus.connect(service, object, interface, QStringLiteral("SettingChanged"), this,
            SLOT(apply(QString, QString, QDBusVariant)));
        ask(appearance, colorScheme);
        ask(appearance, contrast);
        ask(gnomeInterface, enableAnimations);
    }

    std::optional<bool> dark() const override { return m_dark; }
    bool reducedMotion() const override { return m_reducedMotion; }
    bool highContrast() const override { return m_highContrast; }

private Q_SLOTS:
    void apply(const QString& group, const QString& key, const QDBusVariant& wrapped)
    {
        const QVariant value = wrapped.variant();
        if (group == appearance && key == colorScheme) {
            const uint scheme = value.toUInt();
            m_dark = scheme == 1 ? std::optional(true) : scheme == 2 ? std::optional(false) : std::nullopt;
        } else if (group == appearance && key == contrast)
            m_highContrast = value.toUInt() == 1;
        else if (group == gnomeInterface && key == enableAnimations)
            m_reducedMotion = !value.toBool();
        else
            return;
        Q_EMIT changed();
    }

private:
    void ask(const QString& group, const QString& key)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(service, object, interface, QStringLiteral("Read"));
        call << group << key;
        auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group, key, watcher] {
            watcher->deleteLater();
            const QDBusPendingReply<QDBusVariant> reply = *watcher;
            if (reply.isError())
                return;
            // "Read" answers with a variant inside a variant.
            const QVariant value = reply.value().variant();
            apply(group, key, value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>() : QDBusVariant(value));
        });
    }

    std::optional<bool> m_dark;
    bool m_reducedMotion = false;
    bool m_highContrast = false;
};

} // namespace

std::unique_ptr<DesktopPreferences> DesktopPreferences::make() { return std::make_unique<PortalPreferences>(); }

QString DesktopPreferences::fontFamily() { return QStringLiteral("Inter"); }

} // namespace Korvane

#include "DesktopPreferencesLinux.moc"
