#pragma once

#include <QWidget>

namespace tarvin {

class SettingsCard;
class SettingsSheetModel;
class StartupDockSection;

/// The second tab: opening at start-up, and while that is on, what happens then.
class StartupSection : public QWidget
{
    Q_OBJECT

public:
    /// @param model outlives the section
    explicit StartupSection(SettingsSheetModel& model, QWidget* parent = nullptr);

    [[nodiscard]] SettingsCard& openAtStartupCard() const { return *m_openAtStartup; }
    [[nodiscard]] StartupDockSection& dockBehavior() const { return *m_dockBehavior; }

private:
    void follow();
    void showDockBehavior(bool isShown);

    SettingsSheetModel& m_model;
    SettingsCard* m_openAtStartup;
    StartupDockSection* m_dockBehavior;
};

} // namespace tarvin
