#include "platform/macos/ToolTask.h"

#include "platform/macos/TextBridge.h"

namespace tarvin::macos {

namespace {

NSTask* taskOf(const ToolLaunch& launch)
{
    NSTask* const task = [[NSTask alloc] init];
    task.executableURL = [NSURL fileURLWithPath:nsString(launch.tool)];
    task.arguments = nsArray(launch.arguments);
    return task;
}

/// The task's errors come back as objects; what it throws for wrong use cannot happen to a task started once.
std::optional<QString> start(NSTask* task)
{
    NSError* error = nil;
    if ([task launchAndReturnError:&error])
        return std::nullopt;
    return qString(error.localizedDescription);
}

QByteArray contentOf(NSPipe* pipe)
{
    NSData* const data = [pipe.fileHandleForReading readDataToEndOfFileAndReturnError:nil];
    return data ? QByteArray(static_cast<const char*>(data.bytes), static_cast<qsizetype>(data.length)) : QByteArray();
}

} // namespace

std::optional<QString> startTool(const ToolLaunch& launch)
{
    @autoreleasepool {
        return start(taskOf(launch));
    }
}

ToolOutcome runTool(const ToolLaunch& launch)
{
    @autoreleasepool {
        NSTask* const task = taskOf(launch);
        NSPipe* const output = [NSPipe pipe];
        task.standardOutput = output;
        task.standardError = NSFileHandle.fileHandleWithNullDevice;
        if (auto error = start(task))
            return {.launchError = std::move(error), .standardOutput = {}};
        // Read before waiting: a tool whose pipe is full would never end.
        QByteArray content = contentOf(output);
        [task waitUntilExit];
        return {.launchError = {}, .standardOutput = std::move(content)};
    }
}

} // namespace tarvin::macos
