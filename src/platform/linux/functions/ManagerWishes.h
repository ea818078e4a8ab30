#pragma once

#include "platform/linux/functions/FunctionRoads.h"

namespace tarvin::desktop {
class XConnection;
}

namespace tarvin::functions {

/// Asks the running window manager, by the extended hints. A few round trips to the server; main thread.
/// @return false where there is no manager that grants it
[[nodiscard]] bool askManager(desktop::XConnection& connection, ManagerWish wish);

} // namespace tarvin::functions
