#pragma once

#include "platform/ports/InputTaps.h"

#include <memory>

namespace tarvin::macos {

// The toolkit calls both kinds of handler on the main thread. They stay until the result is destroyed, which the
// handler itself may do. Main thread only.

/// Sees key events of other applications, once the program has the permission.
[[nodiscard]] std::unique_ptr<EventMonitor> addGlobalKeyMonitor(InputTaps::MonitorHandler handler);
/// Sees key events on their way to the program's own windows and can swallow them.
[[nodiscard]] std::unique_ptr<EventMonitor> addLocalKeyMonitor(InputTaps::LocalMonitorHandler handler);

} // namespace tarvin::macos
