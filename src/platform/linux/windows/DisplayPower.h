#pragma once

namespace tarvin::windows {

/// Switches the displays of the X session off until the next input, over a connection of its own. Any thread but the
/// main one, since it waits for the server.
/// @return false where the server has no displays that can be switched off
[[nodiscard]] bool switchDisplaysOff();

} // namespace tarvin::windows
