#pragma once

#include "ui/Fonts.h"
#include "ui/Palette.h"
#include "ui/Symbols.h"

#include <QLineEdit>

#include <optional>

namespace tarvin {

/// How a text field looks. Sizes in logical pixels.
struct FieldLook
{
    double height = 30;
    double radius = 8;
    double inset = 10;
    double symbolSize = 12;
    TextStyle text{.size = 12, .weight = TextWeight::regular, .face = TextFace::rounded};
    Colour fill = palette::white.at(0.05);
    Colour stroke = palette::white.at(0.1);
    Colour focusedStroke = palette::mintTeal.at(0.5);
    double symbolGap = 7; ///< between the symbol and the text
    Colour textColour = palette::white.at(0.95);
    Colour symbolColour = palette::white.at(0.4);
    Colour filledSymbolColour = palette::mintTeal; ///< while there is a text
    double clearSymbolSize = 11;
    Colour clearSymbolColour = palette::white.at(0.45);
};

/// A line of text that can be edited, on a rounded plate, with a symbol in front of it and a button behind it that
/// clears it while there is something to clear.
class TextField : public QLineEdit
{
    Q_OBJECT

public:
    /// @param name what is entered, for assistive technology; also the placeholder's text unless another is set
    explicit TextField(const QString& name, std::optional<Symbol> symbol = std::nullopt, const FieldLook& look = {},
        QWidget* parent = nullptr);

    /// Other colours for the plate and the symbol; what else the look says stays as it was.
    void setLook(const FieldLook& look);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    FieldLook m_look;
    std::optional<Symbol> m_symbol;
    QWidget* m_clearButton;
};

} // namespace tarvin
