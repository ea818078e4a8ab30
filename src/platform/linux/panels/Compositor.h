#pragma once

namespace tarvin::desktop {
class XConnection;
}

namespace tarvin::panels {

/// Whether a program blends the windows of the session's first screen, so that translucent ones show what is behind
/// them. Asked anew at each call: people switch compositors on and off.
[[nodiscard]] bool compositorRuns(const desktop::XConnection& connection);

} // namespace tarvin::panels
