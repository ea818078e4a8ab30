#pragma once

#include <QIcon>

namespace tarvin {

/// What stands for the program in a panel: a keyboard, light with a dark rim, so that it can be seen on any panel.
[[nodiscard]] QIcon menuBarIcon();

/// The same in one size, in pixels.
[[nodiscard]] QPixmap paintedMenuBarIcon(int size);

} // namespace tarvin
