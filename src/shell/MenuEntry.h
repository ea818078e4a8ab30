#pragma once

#include <QList>
#include <QString>

#include <cstdint>

namespace tarvin {

/// What an entry of the menu bar menu does when it is clicked.
enum class MenuCommand : std::uint8_t {
    none, ///< dividers, and the entry that opens a submenu
    openStudio,
    toggleOpenAtStartup,
    hideFromDock,
    showInDock,
    toggleInterception,
    toggleFunctionKeys,
    toggleOtherKeys,
    restoreAppleDefaults,
    openAccessibilitySettings,
    quit,
};

enum class MenuEntryKind : std::uint8_t { button, toggle, submenu, divider };

/// One line of the menu bar menu, as it is at this moment.
struct MenuEntry
{
    MenuEntryKind kind = MenuEntryKind::button;
    MenuCommand command = MenuCommand::none;
    QString text{};
    bool isEnabled = true;
    bool isChecked = false; ///< of a toggle: on; of a button in a submenu: the one that holds
    QList<MenuEntry> children{}; ///< of a submenu

    bool operator==(const MenuEntry&) const = default;
};

} // namespace tarvin
