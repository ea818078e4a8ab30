#pragma once

#include "platform/linux/desktop/XConnection.h"

#include <optional>

class QWidget;

namespace tarvin::desktop {

/// The toolkit's own connection to the X server, null on another kind of session.
[[nodiscard]] xcb_connection_t* toolkitConnection();

/// Shows one of the program's windows in front, with the keyboard.
/// @param wishTime of the user's deed that asks for it; the present time if there is none
void bringToFront(QWidget& window, XConnection& connection, std::optional<xcb_timestamp_t> wishTime = std::nullopt);

} // namespace tarvin::desktop
