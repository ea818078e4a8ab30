#pragma once

#include "studio/settings/SettingsTexts.h"

#include <QWidget>

#include <array>

namespace tarvin {

class SettingsCard;
class SettingsSheetModel;

/// The first tab: the master switch, the two portions of the keyboard, and that nothing gets lost.
class KeyboardFlexibilitySection : public QWidget
{
    Q_OBJECT

public:
    /// @param model outlives the section
    explicit KeyboardFlexibilitySection(SettingsSheetModel& model, QWidget* parent = nullptr);

    [[nodiscard]] SettingsCard& card(SwitchCard card) const { return *m_cards[static_cast<std::size_t>(card)]; }

private:
    void follow();

    SettingsSheetModel& m_model;
    std::array<SettingsCard*, switchCardRows.size()> m_cards{};
};

} // namespace tarvin
