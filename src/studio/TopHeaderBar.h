#pragma once

#include "studio/StudioCollaborators.h"

#include <QWidget>

namespace tarvin {

class AppProfileFloatingDock;
class LabelledSwitch;
class OutlinedButton;

/// The bar at the top: the mark, the profiles, the quick buttons and the switch of everything.
class TopHeaderBar : public QWidget
{
    Q_OBJECT

public:
    static constexpr int barHeight = 56;
    /// Narrower than this the bar leaves words out.
    static constexpr int roomyWidth = 1100;

    explicit TopHeaderBar(const StudioCollaborators& collaborators, QWidget* parent = nullptr);

    [[nodiscard]] AppProfileFloatingDock& dock() const { return *m_dock; }
    [[nodiscard]] LabelledSwitch& hookStatusToggle() const { return *m_hookStatusToggle; }

Q_SIGNALS:
    void settingsRequested();
    void addApplicationRequested();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void addButtons();
    void followHook();
    void followBackground();
    void followFeedback();
    void layOut();

    StudioCollaborators m_with;
    AppProfileFloatingDock* m_dock;
    OutlinedButton* m_settingsQuickButton;
    OutlinedButton* m_backgroundModeQuickButton;
    LabelledSwitch* m_hookStatusToggle;
    OutlinedButton* m_backlightQuickButton;
    OutlinedButton* m_soundQuickButton;
    OutlinedButton* m_resetProfileButton;
};

} // namespace tarvin
