#include "platform/macos/MacApplicationControl.h"

#include "platform/macos/TextBridge.h"

#import <AppKit/AppKit.h>

#include <signal.h>

namespace tarvin::macos {

namespace {

NSRunningApplication* running(ProcessIdentifier process)
{
    return [NSRunningApplication runningApplicationWithProcessIdentifier:process];
}

} // namespace

std::optional<QString> MacApplicationControl::pathOfApplication(const QString& bundleIdentifier) const
{
    NSURL* const url = [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:nsString(bundleIdentifier)];
    return optionalString(url.path);
}

bool MacApplicationControl::exists(const QString& path) const
{
    return [NSFileManager.defaultManager fileExistsAtPath:nsString(path)];
}

void MacApplicationControl::openApplication(const QString& path)
{
    // The system takes the empty path for the current folder.
    if (path.isEmpty())
        return;
    NSWorkspaceOpenConfiguration* const configuration = [NSWorkspaceOpenConfiguration configuration];
    configuration.activates = YES;
    [NSWorkspace.sharedWorkspace openApplicationAtURL:[NSURL fileURLWithPath:nsString(path)]
                                        configuration:configuration
                                    completionHandler:nil];
}

void MacApplicationControl::openPath(const QString& path)
{
    if (!path.isEmpty())
        [NSWorkspace.sharedWorkspace openURL:[NSURL fileURLWithPath:nsString(path)]];
}

std::optional<QString> MacApplicationControl::executableOf(ProcessIdentifier process) const
{
    return optionalString(running(process).executableURL.path);
}

bool MacApplicationControl::forceTerminate(ProcessIdentifier process)
{
    return [running(process) forceTerminate];
}

bool MacApplicationControl::isTerminated(ProcessIdentifier process) const
{
    NSRunningApplication* const application = running(process);
    return !application || application.terminated;
}

void MacApplicationControl::kill(ProcessIdentifier process)
{
    // Zero and below are whole groups of processes, our own among them.
    if (process > 0)
        (void)::kill(process, SIGKILL);
}

} // namespace tarvin::macos
