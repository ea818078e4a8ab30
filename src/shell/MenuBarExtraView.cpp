#include "shell/MenuBarExtraView.h"

#include "interception/AccessibilityHelper.h"
#include "interception/FnKeyModeHelper.h"
#include "platform/ports/AppShell.h"
#include "profiles/KeyProfile.h"
#include "shell/BackgroundModeManager.h"

#include <utility>

namespace tarvin {

namespace {

const MenuEntry divider{.kind = MenuEntryKind::divider};

MenuEntry button(const QString& text, MenuCommand command)
{
    return {.kind = MenuEntryKind::button, .command = command, .text = text};
}

MenuEntry toggle(const QString& text, MenuCommand command, bool isOn, bool isEnabled = true)
{
    return {.kind = MenuEntryKind::toggle, .command = command, .text = text, .isEnabled = isEnabled, .isChecked = isOn};
}

MenuCommand commandFor(StartupDockMode mode)
{
    switch (mode) {
    case StartupDockMode::hideFromDock:
        return MenuCommand::hideFromDock;
    case StartupDockMode::showInDock:
        return MenuCommand::showInDock;
    }
    return MenuCommand::none;
}

} // namespace

MenuBarExtraView::MenuBarExtraView(Collaborators collaborators)
    : m_with(std::move(collaborators))
{
    for (const auto signal :
        {&BackgroundModeManager::openAtStartupChanged, &BackgroundModeManager::startupDockModeChanged})
        connect(&m_with.bgManager, signal, this, &MenuBarExtraView::entriesChanged);
    for (const auto signal : {&KeyProfile::interceptionEnabledChanged, &KeyProfile::functionKeysEnabledChanged,
             &KeyProfile::otherKeysEnabledChanged})
        connect(&m_with.keyProfile, signal, this, &MenuBarExtraView::entriesChanged);
}

QList<MenuEntry> MenuBarExtraView::entries() const
{
    const bool opensAtStartup = m_with.bgManager.openAtStartup();
    const bool isOn = m_with.keyProfile.isInterceptionEnabled();
    const bool functionKeys = m_with.keyProfile.isFunctionKeysEnabled();
    const bool otherKeys = m_with.keyProfile.isOtherKeysEnabled();

    QList<MenuEntry> entries{
        button(QStringLiteral("Open Tarvin Studio (⌥⌘K)"), MenuCommand::openStudio),
        divider,
        toggle(QStringLiteral("Open at Startup"), MenuCommand::toggleOpenAtStartup, opensAtStartup),
    };
    if (opensAtStartup) {
        entries += MenuEntry{.kind = MenuEntryKind::submenu,
            .text = QStringLiteral("Startup & Dock Behavior"),
            .children = dockModeEntries()};
    }
    entries += {
        divider,
        toggle(isOn ? QStringLiteral("Master Tarvin: ON") : QStringLiteral("Master Tarvin: OFF (Apple Defaults)"),
            MenuCommand::toggleInterception, isOn),
        toggle(
            functionKeys ? QStringLiteral("Function Keys (F1–F12): ON") : QStringLiteral("Function Keys (F1–F12): OFF"),
            MenuCommand::toggleFunctionKeys, functionKeys, isOn),
        toggle(otherKeys ? QStringLiteral("Other Custom Keys: ON") : QStringLiteral("Other Custom Keys: OFF"),
            MenuCommand::toggleOtherKeys, otherKeys, isOn),
        divider,
        button(QStringLiteral("Restore Factory Apple Keyboard Defaults"), MenuCommand::restoreAppleDefaults),
        divider,
        button(QStringLiteral("Accessibility Settings..."), MenuCommand::openAccessibilitySettings),
        divider,
        button(QStringLiteral("Quit Tarvin"), MenuCommand::quit),
    };
    return entries;
}

QList<MenuEntry> MenuBarExtraView::dockModeEntries() const
{
    QList<MenuEntry> entries;
    for (const StartupDockMode mode : allStartupDockModes) {
        MenuEntry entry = button(title(mode).toString(), commandFor(mode));
        entry.isChecked = mode == m_with.bgManager.startupDockMode();
        entries += entry;
    }
    return entries;
}

void MenuBarExtraView::perform(MenuCommand command)
{
    switch (command) {
    case MenuCommand::none:
        return;
    case MenuCommand::openStudio:
        m_with.bgManager.openStudioWindow();
        return;
    case MenuCommand::toggleOpenAtStartup:
        m_with.bgManager.setOpenAtStartup(!m_with.bgManager.openAtStartup());
        return;
    case MenuCommand::hideFromDock:
        m_with.bgManager.setStartupDockMode(StartupDockMode::hideFromDock);
        return;
    case MenuCommand::showInDock:
        m_with.bgManager.setStartupDockMode(StartupDockMode::showInDock);
        return;
    case MenuCommand::toggleInterception:
        setInterceptionEnabled(!m_with.keyProfile.isInterceptionEnabled());
        return;
    case MenuCommand::toggleFunctionKeys:
        setFunctionKeysEnabled(!m_with.keyProfile.isFunctionKeysEnabled());
        return;
    case MenuCommand::toggleOtherKeys:
        m_with.keyProfile.setOtherKeysEnabled(!m_with.keyProfile.isOtherKeysEnabled());
        return;
    case MenuCommand::restoreAppleDefaults:
        setInterceptionEnabled(false);
        return;
    case MenuCommand::openAccessibilitySettings:
        m_with.accessibilityHelper().openAccessibilitySettings();
        return;
    case MenuCommand::quit:
        m_with.appShell.terminate();
        return;
    }
}

void MenuBarExtraView::setInterceptionEnabled(bool enabled)
{
    m_with.keyProfile.setInterceptionEnabled(enabled);
    if (!enabled)
        m_with.fnKeyModeHelper().restoreAppleDefaults();
}

void MenuBarExtraView::setFunctionKeysEnabled(bool enabled)
{
    m_with.keyProfile.setFunctionKeysEnabled(enabled);
    if (!enabled)
        m_with.fnKeyModeHelper().restoreAppleDefaults();
}

} // namespace tarvin
