#pragma once

#include "shell/StartupDockMode.h"

#include <QWidget>

#include <array>

namespace tarvin {

class SettingsSheetModel;
class StartupDockRow;

/// What the program does at start-up: a heading and a row for each choice.
class StartupDockSection : public QWidget
{
    Q_OBJECT

public:
    /// @param model outlives the section
    explicit StartupDockSection(SettingsSheetModel& model, QWidget* parent = nullptr);

    [[nodiscard]] StartupDockRow& row(StartupDockMode mode) const { return *m_rows[static_cast<std::size_t>(mode)]; }

private:
    void follow();

    SettingsSheetModel& m_model;
    std::array<StartupDockRow*, allStartupDockModes.size()> m_rows{};
};

} // namespace tarvin
