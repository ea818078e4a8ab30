#pragma once

#include "shell/MenuEntry.h"

#include <QObject>

#include <functional>

namespace tarvin {

class AccessibilityHelper;
class AppShell;
class BackgroundModeManager;
class FnKeyModeHelper;
class KeyProfile;

/// What the menu of the menu bar item holds and does: the user's only way to the program while the Studio is hidden.
/// The platform shows it as a menu of its own kind. Main thread only.
class MenuBarExtraView : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        BackgroundModeManager& bgManager;
        KeyProfile& keyProfile;
        AppShell& appShell;
        std::function<FnKeyModeHelper&()> fnKeyModeHelper; ///< made at its first use
        std::function<AccessibilityHelper&()> accessibilityHelper;
    };

    explicit MenuBarExtraView(Collaborators collaborators);

    /// The menu from top to bottom as it is now.
    [[nodiscard]] QList<MenuEntry> entries() const;
    /// What a click on an entry with this command does, whether or not the entry is enabled: a menu shows greyed out
    /// what can't be clicked.
    void perform(MenuCommand command);

Q_SIGNALS:
    /// Some entry is another one now.
    void entriesChanged();

private:
    [[nodiscard]] QList<MenuEntry> dockModeEntries() const;
    void setInterceptionEnabled(bool enabled);
    void setFunctionKeysEnabled(bool enabled);

    Collaborators m_with;
};

} // namespace tarvin
