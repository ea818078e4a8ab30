#pragma once

#include "ui/PaintedButton.h"

#include <QSizeF>

namespace tarvin {

/// A sliding switch. On it is mint.
class SwitchControl : public PaintedButton
{
    Q_OBJECT

public:
    static constexpr QSizeF smallSize{26, 15};
    static constexpr QSizeF largeSize{36, 21};

    /// @param name what is switched, for assistive technology
    explicit SwitchControl(const QString& name, QSizeF size = smallSize, QWidget* parent = nullptr);

    /// Of all that is drawn; 1 at first.
    void setOpacity(double opacity);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSizeF m_size;
    double m_opacity = 1;
    AnimatedValue m_position;
};

} // namespace tarvin
