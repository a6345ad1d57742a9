// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/DesktopPreferences.h"

#import <AppKit/AppKit.h>

namespace Korvane {

namespace {

    /// The settings as the workspace tells them; the palette says by itself whether the look is dark.
    class WorkspacePreferences final : public DesktopPreferences {
    public:
        WorkspacePreferences()
            : m_observer([NSWorkspace.sharedWorkspace.notificationCenter
                  addObserverForName:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
                              object:nil
                               queue:NSOperationQueue.mainQueue
                          usingBlock:^(NSNotification*) { Q_EMIT changed(); }])
        {
        }

        ~WorkspacePreferences() override
        {
            [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:m_observer];
        }

        std::optional<bool> dark() const override { return std::nullopt; }

        bool reducedMotion() const override
        {
            return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion;
        }

        bool highContrast() const override
        {
            return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldIncreaseContrast;
        }

    private:
        id<NSObject> m_observer;
    };

} // namespace

std::unique_ptr<DesktopPreferences> DesktopPreferences::make()
{
    return std::make_unique<WorkspacePreferences>();
}

QString DesktopPreferences::fontFamily()
{
    return {};
}

} // namespace Korvane
