#pragma once

#include "studio/StudioCollaborators.h"

#include <QWidget>

namespace tarvin {

class MacBookAirKeyboardView;
class StatusAndMonitorSection;
class TopSettingsControls;

/// What scrolls between header and footer: the row of controls at the top, and in the middle of the height that is left
/// the keyboard with its messages.
class StudioBody : public QWidget
{
    Q_OBJECT

public:
    explicit StudioBody(const StudioCollaborators& collaborators, QWidget* parent = nullptr);

    [[nodiscard]] MacBookAirKeyboardView& keyboard() const { return *m_keyboard; }
    [[nodiscard]] TopSettingsControls& controls() const { return *m_controls; }
    /// The least height in which nothing is cut off.
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    TopSettingsControls* m_controls;
    MacBookAirKeyboardView* m_keyboard;
    StatusAndMonitorSection* m_status;
};

} // namespace tarvin
