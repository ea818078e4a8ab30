#pragma once

#include "studio/settings/SettingsTexts.h"
#include "ui/Fonts.h"
#include "ui/PaintedButton.h"

namespace tarvin {

/// One of the tabs at the top of the settings sheet.
class SettingsTabButton : public PaintedButton
{
    Q_OBJECT

public:
    explicit SettingsTabButton(SettingsTab tab, QWidget* parent = nullptr);

    void setSelected(bool selected);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] TextStyle titleStyle() const;

    const SettingsTabRow& m_row;
    AnimatedValue m_selection; ///< from 0 to 1, selected
};

} // namespace tarvin
