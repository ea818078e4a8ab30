#pragma once

namespace tarvin::macos {

// Changes of the window class, for every window and panel of the process and for its whole life. Each is made once,
// however often it is asked for; nothing changes where the system's class lacks the method. Main thread only.

/// A key that nobody takes makes no alert sound.
void silenceUnhandledKeys();

/// A request to minimise skips the check of the title bar's button, which some of our windows do not have.
void letMinimizeRequestsThrough();

} // namespace tarvin::macos
