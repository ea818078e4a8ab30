#pragma once

#include "platform/macos/translation/EventRecord.h"

#import <AppKit/AppKit.h>

namespace tarvin::macos {

/// Reads an event of a tap. A system-defined one is read by way of the application toolkit, which alone knows its data.
/// @param type as the callback got it: it, not the event, says that a tap was switched off
[[nodiscard]] EventRecord recordOf(CGEventType type, CGEventRef event);

/// Reads an event of a monitor. Asking one for what its type does not have is an error of the caller there, so only
/// the fields of the type are read.
[[nodiscard]] EventRecord recordOf(NSEvent* event);

} // namespace tarvin::macos
