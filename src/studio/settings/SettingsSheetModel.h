#pragma once

#include "studio/settings/SettingsTexts.h"

#include <QObject>
#include <QString>

#include <functional>

namespace tarvin {

class BackgroundModeManager;
class FnKeyModeHelper;
class KeyProfile;

/// A card with a switch, as it is to be drawn.
struct SwitchCardState
{
    bool isOn = false; ///< the switch
    bool isActive = false; ///< whether the card is drawn in the accent
    bool isEnabled = true; ///< whether the card takes clicks
    QStringView icon;
    QString chip;
    bool hasMasterOffChip = false;
    double opacity = 1.0;
};

/// What the settings sheet shows and writes. Made each time the sheet is presented; every switch takes effect at once.
/// Main thread only.
class SettingsSheetModel : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        BackgroundModeManager& background;
        KeyProfile& profile;
        FnKeyModeHelper& functionKeyMode;
        std::function<void()> close; ///< asks the owner to take the sheet away
    };

    explicit SettingsSheetModel(Collaborators collaborators);

    [[nodiscard]] SettingsTab selectedTab() const { return m_selectedTab; }
    void selectTab(SettingsTab tab);
    void close() const { m_with.close(); }

    [[nodiscard]] SwitchCardState switchCard(SwitchCard card) const;
    /// Turning the master switch or the function keys off also restores the system's function key mode.
    void setSwitch(SwitchCard card, bool on);

    [[nodiscard]] bool openAtStartup() const;
    void setOpenAtStartup(bool open);
    /// Whether the rows about the Dock are there.
    [[nodiscard]] bool showsStartupDockBehavior() const { return openAtStartup(); }
    [[nodiscard]] StartupDockMode startupDockMode() const;
    void setStartupDockMode(StartupDockMode mode);

    [[nodiscard]] StatusIndicator indicator() const { return statusIndicator(status()); }
    [[nodiscard]] QStringView summaryText() const { return statusSummaryText(m_selectedTab, status()); }

Q_SIGNALS:
    /// Anything shown may differ.
    void changed();

private:
    [[nodiscard]] SettingsStatus status() const;

    Collaborators m_with;
    SettingsTab m_selectedTab = SettingsTab::keyboardFlexibility;
};

} // namespace tarvin
