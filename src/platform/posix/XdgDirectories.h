#pragma once

#include <QString>

namespace tarvin::posix {

// The folders of the XDG base directory rules, worked out from the environment at each call. A variable that is unset,
// empty or not absolute counts for nothing, as those rules say.

/// `$XDG_DATA_HOME/Tarvin`, else `~/.local/share/Tarvin`.
[[nodiscard]] QString applicationSupportDirectory();

/// `$XDG_CONFIG_HOME/Tarvin/settings.json`, else `~/.config/Tarvin/settings.json`.
[[nodiscard]] QString settingsFile();

} // namespace tarvin::posix
