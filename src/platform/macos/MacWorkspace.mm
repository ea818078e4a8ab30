#include "platform/macos/MacWorkspace.h"

#include "platform/macos/NotificationToken.h"
#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/ApplicationRecord.h"
#include "platform/macos/translation/WindowRecord.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace tarvin::macos {

namespace {

std::optional<RunningApplication> applicationOf(NSRunningApplication* application)
{
    if (!application)
        return std::nullopt;
    return runningApplicationOf({
        .processIdentifier = application.processIdentifier,
        .bundleIdentifier = optionalString(application.bundleIdentifier),
        .localizedName = optionalString(application.localizedName),
        .activationPolicy = static_cast<std::int64_t>(application.activationPolicy),
        .isHidden = static_cast<bool>(application.hidden),
        .isTerminated = static_cast<bool>(application.terminated),
    });
}

/// What is no number counts as missing.
NSNumber* numberIn(NSDictionary* dictionary, const char* key)
{
    const id value = dictionary[nsString(key)];
    return [value isKindOfClass:NSNumber.class] ? value : nil;
}

std::optional<std::int64_t> integerIn(NSDictionary* dictionary, const char* key)
{
    NSNumber* const number = numberIn(dictionary, key);
    return number ? std::optional<std::int64_t>(number.longLongValue) : std::nullopt;
}

std::optional<Size> sizeIn(NSDictionary* dictionary, const char* key)
{
    const id bounds = dictionary[nsString(key)];
    if (![bounds isKindOfClass:NSDictionary.class])
        return std::nullopt;
    NSNumber* const width = numberIn(bounds, boundsWidthKey);
    NSNumber* const height = numberIn(bounds, boundsHeightKey);
    return Size{.width = width.doubleValue, .height = height.doubleValue};
}

class ActivationObserver final : public WorkspaceObserver
{
public:
    explicit ActivationObserver(NotificationToken token)
        : m_token(std::move(token))
    { }

private:
    NotificationToken m_token;
};

} // namespace

std::optional<RunningApplication> MacWorkspace::frontmostApplication() const
{
    return applicationOf(NSWorkspace.sharedWorkspace.frontmostApplication);
}

std::vector<RunningApplication> MacWorkspace::runningApplications() const
{
    std::vector<RunningApplication> applications;
    for (NSRunningApplication* running in NSWorkspace.sharedWorkspace.runningApplications) {
        if (auto application = applicationOf(running))
            applications.push_back(std::move(*application));
    }
    return applications;
}

std::optional<RunningApplication> MacWorkspace::applicationWithProcess(ProcessIdentifier process) const
{
    return applicationOf([NSRunningApplication runningApplicationWithProcessIdentifier:process]);
}

std::vector<OnScreenWindow> MacWorkspace::onScreenWindows() const
{
    // The list is ours by its Copy; the bridge hands it to the reference counting.
    NSArray* const list = (__bridge_transfer NSArray*)CGWindowListCopyWindowInfo(windowListOptions, 0);
    std::vector<OnScreenWindow> windows;
    for (id row in list) {
        if (![row isKindOfClass:NSDictionary.class])
            continue;
        windows.push_back(onScreenWindowOf({
            .owner = integerIn(row, windowOwnerKey),
            .layer = integerIn(row, windowLayerKey),
            .size = sizeIn(row, windowBoundsKey),
        }));
    }
    return windows;
}

void MacWorkspace::activate(ProcessIdentifier process)
{
    [[NSRunningApplication runningApplicationWithProcessIdentifier:process] activateWithOptions:0];
}

void MacWorkspace::openUrl(const QString& url)
{
    if (NSURL* const address = [NSURL URLWithString:nsString(url)])
        [NSWorkspace.sharedWorkspace openURL:address];
}

std::unique_ptr<WorkspaceObserver> MacWorkspace::observeActivation(ActivationHandler handler)
{
    return std::make_unique<ActivationObserver>(NotificationToken(NSWorkspace.sharedWorkspace.notificationCenter,
        NSWorkspaceDidActivateApplicationNotification, NotificationDelivery::mainQueue,
        [handler = std::move(handler)](NSNotification* notification) {
            const id application = notification.userInfo[NSWorkspaceApplicationKey];
            handler([application isKindOfClass:NSRunningApplication.class] ? applicationOf(application) : std::nullopt);
        }));
}

} // namespace tarvin::macos
