#pragma once

#include "ui/TextLabel.h"

namespace tarvin {

/// The words above a part of the list, set a little wider than other text. In the middle of the box's height.
void drawPickerHeading(QPainter& painter, const QRectF& box, const QString& words, const Colour& colour);

/// A heading that does nothing.
class PickerHeading : public TextLabel
{
    Q_OBJECT

public:
    static constexpr Colour usualColour = Colour{1, 1, 1}.at(0.45);

    PickerHeading(const QString& words, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvin
