// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/UserDefaults.h"

#include "Platform/Preferences/FileUserDefaults.h"
#include "Platform/Preferences/ObserverList.h"

#import <Foundation/Foundation.h>

#include <set>
#include <utility>

/// Hears of changes of the store, also of those that other processes make, and hands each key on, on the main thread.
@interface KorvaneDefaultsObserver : NSObject
@property(nonatomic, copy) void (^changed)(NSString* key);
@end

@implementation KorvaneDefaultsObserver

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)__unused object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)__unused context
{
    if ([change[NSKeyValueChangeOldKey] isEqual:change[NSKeyValueChangeNewKey]])
        return;
    __weak KorvaneDefaultsObserver* weakSelf = self;
    void (^tell)(void) = ^{
        KorvaneDefaultsObserver* observer = weakSelf;
        if (observer.changed != nil)
            observer.changed(keyPath);
    };
    if (NSThread.isMainThread)
        tell();
    else
        dispatch_async(dispatch_get_main_queue(), tell);
}

@end

namespace Korvane {

namespace {

NSString* nameOf(std::string_view key)
{
    NSString* name = [[NSString alloc] initWithBytes:key.data() length:key.size() encoding:NSUTF8StringEncoding];
    return name != nil ? name : @"";
}

/// The application's own domain of the standard store, which the system writes and hands to other processes.
class MacUserDefaults final : public UserDefaults {
public:
    MacUserDefaults()
    {
        m_observer.changed = ^(NSString* key) { m_observers.notify(key.UTF8String); };
    }
    ~MacUserDefaults() override
    {
        m_observer.changed = nil;
        for (const auto& key : m_watchedKeys)
            [NSUserDefaults.standardUserDefaults removeObserver:m_observer forKeyPath:nameOf(key)];
    }

    bool boolForKey(std::string_view key, bool whenAbsent) const override
    {
        @autoreleasepool {
            NSNumber* value = numberForKey(key);
            return value != nil && isBoolean(value) ? value.boolValue : whenAbsent;
        }
    }

    std::int64_t integerForKey(std::string_view key, std::int64_t whenAbsent) const override
    {
        @autoreleasepool {
            NSNumber* value = numberForKey(key);
            const bool isInteger
                = value != nil && !isBoolean(value) && !CFNumberIsFloatType((__bridge CFNumberRef)value);
            return isInteger ? value.longLongValue : whenAbsent;
        }
    }

    double doubleForKey(std::string_view key, double whenAbsent) const override
    {
        @autoreleasepool {
            NSNumber* value = numberForKey(key);
            return value != nil && !isBoolean(value) ? value.doubleValue : whenAbsent;
        }
    }

    bool setBool(std::string_view key, bool value) override
    {
        return store(key, [NSNumber numberWithBool:value ? YES : NO]);
    }
    bool setInteger(std::string_view key, std::int64_t value) override
    {
        return store(key, [NSNumber numberWithLongLong:value]);
    }
    bool setDouble(std::string_view key, double value) override
    {
        return store(key, [NSNumber numberWithDouble:value]);
    }

    std::unique_ptr<Observation> observe(std::function<void(std::string_view key)> changed) override
    {
        return m_observers.add(std::move(changed));
    }

private:
    static bool isBoolean(NSNumber* value) { return CFGetTypeID((__bridge CFTypeRef)value) == CFBooleanGetTypeID(); }

    NSNumber* numberForKey(std::string_view key) const
    {
        watch(key);
        id value = [NSUserDefaults.standardUserDefaults objectForKey:nameOf(key)];
        return [value isKindOfClass:NSNumber.class] ? value : nil;
    }

    /// The store writes by itself and does not say when it cannot.
    bool store(std::string_view key, NSNumber* value)
    {
        @autoreleasepool {
            watch(key);
            [NSUserDefaults.standardUserDefaults setObject:value forKey:nameOf(key)];
            return true;
        }
    }

    /// The store tells of single keys only: each is watched from the first time that somebody asks for it.
    void watch(std::string_view key) const
    {
        if (!m_watchedKeys.insert(std::string(key)).second)
            return;
        [NSUserDefaults.standardUserDefaults addObserver:m_observer
                                              forKeyPath:nameOf(key)
                                                 options:NSKeyValueObservingOptionOld | NSKeyValueObservingOptionNew
                                                 context:nullptr];
    }

    KorvaneDefaultsObserver* m_observer = [[KorvaneDefaultsObserver alloc] init];
    mutable std::set<std::string> m_watchedKeys;
    ObserverList m_observers;
};

} // namespace

std::shared_ptr<UserDefaults> makeUserDefaults(const Environment& environment)
{
    @autoreleasepool {
        // Another home, as in a test or a demonstration, keeps its preferences to itself.
        const std::filesystem::path userHome = NSHomeDirectory().fileSystemRepresentation;
        if (environment.home != userHome)
            return makeFileUserDefaults(environment.home / "Library/Preferences/korvane.conf");
        return std::make_shared<MacUserDefaults>();
    }
}

} // namespace Korvane
