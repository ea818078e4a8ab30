#include "studio/settings/SettingsSheetModel.h"

#include "interception/FnKeyModeHelper.h"
#include "profiles/KeyProfile.h"
#include "shell/BackgroundModeManager.h"

#include <utility>

namespace tarvin {

namespace {

constexpr double disabledCardOpacity = 0.45;

QString customizedChip(int count)
{
    return QStringLiteral("%1 Customized").arg(count);
}

SwitchCardState masterCard(bool isOn)
{
    return {.isOn = isOn,
        .isActive = isOn,
        .icon = isOn ? QStringView(u"bolt.fill") : QStringView(u"bolt.slash.fill"),
        .chip = isOn ? QStringLiteral("MASTER ACTIVE") : QStringLiteral("PAUSED")};
}

SwitchCardState portionCard(bool isOn, bool isMasterOn, QStringView icon, int customizedCount)
{
    return {.isOn = isOn,
        .isActive = isOn && isMasterOn,
        .isEnabled = isMasterOn,
        .icon = icon,
        .chip = customizedChip(customizedCount),
        .hasMasterOffChip = !isMasterOn,
        .opacity = isMasterOn ? 1.0 : disabledCardOpacity};
}

} // namespace

SettingsSheetModel::SettingsSheetModel(Collaborators collaborators)
    : m_with(std::move(collaborators))
{
    const KeyProfile* const profile = &m_with.profile;
    connect(profile, &KeyProfile::interceptionEnabledChanged, this, &SettingsSheetModel::changed);
    connect(profile, &KeyProfile::functionKeysEnabledChanged, this, &SettingsSheetModel::changed);
    connect(profile, &KeyProfile::otherKeysEnabledChanged, this, &SettingsSheetModel::changed);
    connect(profile, &KeyProfile::profileMappingsChanged, this, &SettingsSheetModel::changed);
    connect(profile, &KeyProfile::currentProfileChanged, this, &SettingsSheetModel::changed);
    const BackgroundModeManager* const background = &m_with.background;
    connect(background, &BackgroundModeManager::openAtStartupChanged, this, &SettingsSheetModel::changed);
    connect(background, &BackgroundModeManager::startupDockModeChanged, this, &SettingsSheetModel::changed);
}

void SettingsSheetModel::selectTab(SettingsTab tab)
{
    if (tab == m_selectedTab)
        return;
    m_selectedTab = tab;
    Q_EMIT changed();
}

SwitchCardState SettingsSheetModel::switchCard(SwitchCard card) const
{
    const KeyProfile& profile = m_with.profile;
    const bool isMasterOn = profile.isInterceptionEnabled();
    switch (card) {
    case SwitchCard::master:
        return masterCard(isMasterOn);
    case SwitchCard::functionKeys:
        return portionCard(
            profile.isFunctionKeysEnabled(), isMasterOn, u"f.cursive", profile.customizedFunctionKeysCount());
    case SwitchCard::otherKeys:
        return portionCard(
            profile.isOtherKeysEnabled(), isMasterOn, u"command.square.fill", profile.customizedOtherKeysCount());
    }
    return {};
}

void SettingsSheetModel::setSwitch(SwitchCard card, bool on)
{
    if (!switchCard(card).isEnabled)
        return;
    switch (card) {
    case SwitchCard::master:
        m_with.profile.setInterceptionEnabled(on);
        break;
    case SwitchCard::functionKeys:
        m_with.profile.setFunctionKeysEnabled(on);
        break;
    case SwitchCard::otherKeys:
        m_with.profile.setOtherKeysEnabled(on);
        return;
    }
    if (!on)
        m_with.functionKeyMode.restoreAppleDefaults();
}

bool SettingsSheetModel::openAtStartup() const
{
    return m_with.background.openAtStartup();
}

void SettingsSheetModel::setOpenAtStartup(bool open)
{
    m_with.background.setOpenAtStartup(open);
}

StartupDockMode SettingsSheetModel::startupDockMode() const
{
    return m_with.background.startupDockMode();
}

void SettingsSheetModel::setStartupDockMode(StartupDockMode mode)
{
    m_with.background.setStartupDockMode(mode);
}

SettingsStatus SettingsSheetModel::status() const
{
    return {.isInterceptionEnabled = m_with.profile.isInterceptionEnabled(),
        .isFunctionKeysEnabled = m_with.profile.isFunctionKeysEnabled(),
        .isOtherKeysEnabled = m_with.profile.isOtherKeysEnabled(),
        .startupDockMode = m_with.background.startupDockMode()};
}

} // namespace tarvin
