#pragma once

#include "studio/StudioCollaborators.h"

#include <QWidget>

namespace tarvin {

class OutlinedButton;
class TextLabel;

/// The bar at the bottom: battery, background mode and the way to the system's keyboard settings.
class BottomFooterBar : public QWidget
{
    Q_OBJECT

public:
    static constexpr int barHeight = 36;

    explicit BottomFooterBar(const StudioCollaborators& collaborators, QWidget* parent = nullptr);

Q_SIGNALS:
    void settingsRequested();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void followBattery();
    void followBackground();

    StudioCollaborators m_with;
    TextLabel* m_battery;
    OutlinedButton* m_background;
};

} // namespace tarvin
