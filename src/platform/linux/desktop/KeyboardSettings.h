#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tarvin::desktop {

/// The command that shows the desktop's own settings of the keyboard: that of the running desktop if it is installed,
/// else the first that is. Absent where none is.
/// @param currentDesktop as XDG_CURRENT_DESKTOP tells it: names between colons
/// @param searchPath the folders to look for programs in; empty: those of PATH
[[nodiscard]] std::optional<QStringList> keyboardSettingsCommand(
    const QString& currentDesktop, const QStringList& searchPath = {});

/// Starts that command and leaves it alone.
/// @return false if there is none
bool openKeyboardSettings();

} // namespace tarvin::desktop
