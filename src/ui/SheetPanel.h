#pragma once

#include "ui/Colour.h"

#include <QWidget>

namespace tarvin {

/// What a sheet shows: a plate with rounded corners, a dialog for assistive technology. The sheet gives it the
/// keyboard; a panel with a focus proxy passes it on.
class SheetPanel : public QWidget
{
    Q_OBJECT

public:
    static constexpr double radius = 12;

    /// @param name of the dialog
    SheetPanel(const QString& name, const QSize& size, const Colour& fill);

protected:
    /// Draws what lies on the plate behind all controls. What leaves the plate is cut off.
    virtual void paintGround(QPainter& painter) = 0;

    void paintEvent(QPaintEvent* event) final;

private:
    const Colour m_fill;
};

} // namespace tarvin
