#include "platform/macos/MacScripts.h"

#include "platform/applescript/AppleScriptText.h"
#include "platform/macos/TextBridge.h"

namespace tarvin::macos {

std::optional<ScriptResult> MacScripts::run(const Script& script)
{
    const std::lock_guard lock(m_oneAtATime);
    @autoreleasepool {
        NSAppleScript* const source = [[NSAppleScript alloc] initWithSource:nsString(appleScriptSource(script))];
        if (!source)
            return std::nullopt;
        NSDictionary<NSString*, id>* error = nil;
        NSAppleEventDescriptor* const result = [source executeAndReturnError:&error];
        return ScriptResult{
            .error = error ? optionalString(error.description) : std::nullopt,
            .text = optionalString(result.stringValue),
        };
    }
}

} // namespace tarvin::macos
