#include "platform/macos/MacSystemCommands.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/ToolTask.h"
#include "platform/macrequests/LoginWindowEvent.h"

namespace tarvin::macos {

static_assert(NSAppleEventSendNoReply == LoginWindowEvent{}.sendOptions);

void MacSystemCommands::run(const SystemCommand& command)
{
    (void)startTool(toolLaunch(command));
}

void MacLoginWindow::send(PowerEvent event)
{
    @autoreleasepool {
        const LoginWindowEvent fields = loginWindowEvent(event);
        NSAppleEventDescriptor* const target =
            [NSAppleEventDescriptor descriptorWithBundleIdentifier:nsString(fields.targetIdentifier)];
        NSAppleEventDescriptor* const request = [NSAppleEventDescriptor appleEventWithEventClass:fields.eventClass
                                                                                         eventID:fields.eventId
                                                                                targetDescriptor:target
                                                                                        returnID:fields.returnId
                                                                                   transactionID:fields.transactionId];
        const std::chrono::duration<double> timeout = fields.timeout;
        (void)[request sendEventWithOptions:fields.sendOptions timeout:timeout.count() error:nil];
    }
}

} // namespace tarvin::macos
