#pragma once

#include "ui/AnimatedValue.h"
#include "ui/Colour.h"
#include "ui/Fonts.h"
#include "ui/Symbols.h"

#include <QString>
#include <QWidget>

#include <optional>

namespace tarvin {

class SwitchControl;

/// How a switch with its label looks at this moment. Sizes in logical pixels.
struct LabelledSwitchLook
{
    QString label;
    Colour labelColour;
    Colour fill;
    Colour stroke;
    std::optional<Symbol> symbol{}; ///< before the label
    Colour symbolColour{};
    std::optional<Colour> dot{}; ///< instead of a symbol
    bool isDotShining = false;

    bool operator==(const LabelledSwitchLook&) const = default;
};

/// A small plate with a label and a switch.
class LabelledSwitch : public QWidget
{
    Q_OBJECT

public:
    static constexpr int plateHeight = 28;

    /// @param name of the switch, for assistive technology
    /// @param radius of the plate's corners
    LabelledSwitch(const QString& name, const TextStyle& style, double radius, QWidget* parent = nullptr);

    void setLook(const LabelledSwitchLook& look);
    [[nodiscard]] const LabelledSwitchLook& look() const { return m_look; }
    void setTip(const QString& tip);
    [[nodiscard]] SwitchControl& control() const { return *m_control; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] double signWidth() const;

    TextStyle m_style;
    double m_radius;
    LabelledSwitchLook m_look;
    LabelledSwitchLook m_lookBefore; ///< its colours fade into those of now
    AnimatedValue m_change;
    SwitchControl* m_control;
};

} // namespace tarvin
