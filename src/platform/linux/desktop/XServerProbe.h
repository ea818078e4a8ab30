#pragma once

namespace tarvin::desktop {

/// Whether the X server that the variable `DISPLAY` names lets us in. To be asked before the application object is
/// made, which would end the process with a core dump where there is none.
[[nodiscard]] bool xServerAnswers();

} // namespace tarvin::desktop
