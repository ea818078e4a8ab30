#pragma once

#include "studio/recorder/ShortcutPresets.h"

#include <QScrollArea>

namespace tarvin {

/// The presets beside each other, scrolling sideways. The one that gets the keyboard scrolls into sight.
class PresetStrip : public QScrollArea
{
    Q_OBJECT

public:
    explicit PresetStrip(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

Q_SIGNALS:
    void presetChosen(const tarvin::ShortcutPreset& preset);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace tarvin
