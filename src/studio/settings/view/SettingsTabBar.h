#pragma once

#include "studio/settings/SettingsTexts.h"

#include <QWidget>

#include <array>

namespace tarvin {

class SettingsTabButton;

/// The tabs of the settings sheet side by side. Its own widget, because buttons of which one is chosen are one group
/// with all such buttons below the same parent.
class SettingsTabBar : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsTabBar(QWidget* parent);

    [[nodiscard]] SettingsTabButton& button(SettingsTab tab) const { return *m_buttons[static_cast<std::size_t>(tab)]; }
    void setSelected(SettingsTab tab) const;

Q_SIGNALS:
    void tabChosen(tarvin::SettingsTab tab);

private:
    std::array<SettingsTabButton*, settingsTabRows.size()> m_buttons{};
};

} // namespace tarvin
