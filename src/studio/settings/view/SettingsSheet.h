#pragma once

#include "studio/settings/SettingsTexts.h"
#include "ui/SheetPanel.h"

#include <array>
#include <memory>

class QScrollArea;

namespace tarvin {

class KeyboardFlexibilitySection;
class SettingsSheetModel;
class SettingsTabBar;
class StartupSection;
class TextLabel;

/// The sheet for the program's switches, in two tabs. Every control takes effect at once.
class SettingsSheet : public SheetPanel
{
    Q_OBJECT

public:
    static constexpr QSize sheetSize{560, 530};

    explicit SettingsSheet(std::unique_ptr<SettingsSheetModel> model);
    ~SettingsSheet() override;
    SettingsSheet(const SettingsSheet&) = delete;
    SettingsSheet& operator=(const SettingsSheet&) = delete;

    [[nodiscard]] SettingsSheetModel& model() const { return *m_model; }
    [[nodiscard]] SettingsTabBar& tabs() const { return *m_tabs; }
    [[nodiscard]] KeyboardFlexibilitySection& keyboardFlexibility() const { return *m_keyboardFlexibility; }
    [[nodiscard]] StartupSection& startup() const { return *m_startup; }
    [[nodiscard]] QString headerTitle() const;
    [[nodiscard]] QString headerSubtitle() const;
    [[nodiscard]] QString summary() const;
    [[nodiscard]] Colour indicatorColour() const;

protected:
    void paintGround(QPainter& painter) override;

private:
    void addHeader();
    void addFooter();
    [[nodiscard]] QScrollArea* areaFor(QWidget* section);
    void follow();
    void showTab(SettingsTab tab);

    std::unique_ptr<SettingsSheetModel> m_model;
    TextLabel* m_title;
    TextLabel* m_subtitle;
    SettingsTabBar* m_tabs = nullptr;
    KeyboardFlexibilitySection* m_keyboardFlexibility = nullptr;
    StartupSection* m_startup = nullptr;
    std::array<QScrollArea*, settingsTabRows.size()> m_areas{};
    TextLabel* m_summary = nullptr;
};

} // namespace tarvin
