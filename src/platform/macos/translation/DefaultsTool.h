#pragma once

#include "platform/macrequests/ToolLaunch.h"

#include <QStringView>

namespace tarvin::macos {

/// The global setting that makes the top row send plain function keys, and what tells of its change.
inline constexpr QStringView functionKeySetting = u"com.apple.keyboard.fnState";
inline constexpr QStringView functionKeySettingChanged = u"com.apple.keyboard.fnStateChanged";

/// Reads the setting of all applications; the tool prints it with a line end, or nothing if it is not set.
[[nodiscard]] ToolLaunch readFunctionKeySetting();
[[nodiscard]] ToolLaunch writeFunctionKeySetting(bool dedicated);

} // namespace tarvin::macos
