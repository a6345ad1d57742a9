// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Devices/DeviceScreenFixture.h"

#include "Tests/Core/ForwardingFileManager.h"

#include <QAccessible>

#include <utility>

namespace Korvane {

namespace {

QQuickItem* itemIn(QQuickItem* item, const char* kind, const QString& name, const QString& description = {})
{
    if (!item->isVisible())
        return nullptr;
    if (item->inherits(kind) && accessibleName(item) == name) {
        const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(item);
        if (description.isEmpty() || interface->text(QAccessible::Description).startsWith(description))
            return item;
    }
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = itemIn(child, kind, name, description))
            return found;
    }
    return nullptr;
}

/// Appends the names of the items of this kind that can be seen.
void collect(QQuickItem* item, const char* kind, QStringList& names)
{
    if (!item->isVisible())
        return;
    if (item->inherits(kind))
        names.append(accessibleName(item));
    for (QQuickItem* child : item->childItems())
        collect(child, kind, names);
}

} // namespace

StandInDevices DeviceScreenFixture::phone() const
{
    StandInDevices devices = tools();
    devices.connect("a", "Anna's iPhone");
    for (const char* path :
        { "100APPLE/IMG_1.HEIC", "100APPLE/IMG_2.MOV", "100APPLE/IMG_3.JPG", "101APPLE/IMG_4.HEIC" })
        devices.addMedia("a", path);
    return devices;
}

QQuickItem* DeviceScreenFixture::itemOf(const char* kind, const char* name) const
{
    return itemIn(window()->contentItem(), kind, utf8(name));
}

QQuickItem* DeviceScreenFixture::trashButton(const char* backup) const
{
    return itemIn(window()->contentItem(), "QQuickButton", utf8("Delete backup of ") + utf8(backup));
}

QQuickItem* DeviceScreenFixture::refreshButton(const char* heading) const
{
    return itemIn(window()->contentItem(), "QQuickButton", utf8("Refresh"), utf8(heading));
}

QStringList DeviceScreenFixture::bars() const
{
    QStringList names;
    collect(window()->contentItem(), "QQuickProgressBar", names);
    return names;
}

void DeviceScreenFixture::restartWith(std::function<void(const std::filesystem::path&)> beforeListing)
{
    const auto files = std::make_shared<ForwardingFileManager>(m_test->host.files);
    files->beforeListing = std::move(beforeListing);
    m_test->host.files = files;
    m_app.reset();
    m_app = std::make_unique<KorvaneApp>(m_test->host);
    QVERIFY(m_app->start());
    QVERIFY(QTest::qWaitForWindowExposed(window()));
}

void DeviceScreenFixture::pressItem(QQuickItem* item) const
{
    QVERIFY(item != nullptr);
    QTRY_VERIFY(item->isEnabled());
    click(item);
}

bool DeviceScreenFixture::isTicked(const char* file) const
{
    QQuickItem* item = rowOf(file);
    return item != nullptr && QAccessible::queryAccessibleInterface(item)->state().checked;
}

void DeviceScreenFixture::askForThree() const
{
    open();
    QTRY_VERIFY(folderBox("100APPLE"));
    pressItem(folderBox("100APPLE"));
    press("Delete from Device");
}

} // namespace Korvane
