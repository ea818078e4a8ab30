#pragma once

#include <QImage>
#include <QRect>

#include <vector>

namespace tarvin::desktop {
class XConnection;
}

namespace tarvin::capture {

/// A picture of all screens as the X server shows them now, in its pixels. Main thread.
/// @return a null picture on a session that is not X
[[nodiscard]] QImage grabScreen(desktop::XConnection& connection);

/// The windows on the screen with their frames, front to back, in pixels.
[[nodiscard]] std::vector<QRect> windowAreas(desktop::XConnection& connection);

} // namespace tarvin::capture
