#pragma once

#include "model/ActionParameters.h"

#include <QWidget>

#include <array>
#include <optional>

namespace tarvin {

class TextBlock;
class TextLabel;

/// Whether several keys are played together or one after another.
class PlaybackModeSelector : public QWidget
{
    Q_OBJECT

public:
    explicit PlaybackModeSelector(QWidget* parent = nullptr);

    void show(MultiKeyPlaybackMode mode, qsizetype keyCount);
    using QWidget::show;

Q_SIGNALS:
    void modeChosen(tarvin::MultiKeyPlaybackMode mode);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    class ModeButton;

    TextLabel* m_heading;
    std::array<ModeButton*, 2> m_buttons{}; ///< by mode
    TextBlock* m_explanation;
    std::optional<MultiKeyPlaybackMode> m_shown;
};

} // namespace tarvin
