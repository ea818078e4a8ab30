#pragma once

#include "ui/Fonts.h"
#include "ui/PaintedButton.h"
#include "ui/Palette.h"
#include "ui/Symbols.h"

#include <optional>

namespace tarvin {

/// How a button with a symbol, a text or both looks. Sizes in logical pixels.
struct ButtonLook
{
    double height = 28;
    double radius = 8; ///< half the height makes a capsule
    double inset = 9; ///< left and right of the content
    double symbolSize = 10.5;
    double spacing = 5; ///< between symbol and text
    TextStyle text{.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded};
    Colour symbolColour = palette::white.at(0.75);
    Colour textColour = palette::white.at(0.8);
    Colour fill = palette::buttonFill;
    Colour hoveredFill = palette::white.at(0.09);
    Colour stroke = palette::buttonStroke;
    double disabledOpacity = 0.4; ///< of everything while the button is disabled

    bool operator==(const ButtonLook&) const = default;
};

/// A small plate with a symbol, a text or both.
class OutlinedButton : public PaintedButton
{
    Q_OBJECT

public:
    explicit OutlinedButton(const ButtonLook& look = {}, QWidget* parent = nullptr);

    void setSymbol(std::optional<Symbol> symbol);
    void setLook(const ButtonLook& look);
    [[nodiscard]] const ButtonLook& look() const { return m_look; }
    /// Shows the symbol alone. The text stays the button's name.
    void setCompact(bool compact);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool showsText() const;

    ButtonLook m_look;
    std::optional<Symbol> m_symbol;
    bool m_isCompact = false;
};

} // namespace tarvin
