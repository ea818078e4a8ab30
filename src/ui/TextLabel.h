#pragma once

#include "ui/Colour.h"
#include "ui/Fonts.h"
#include "ui/Symbols.h"

#include <QLabel>

#include <optional>

namespace tarvin {

/// One line of text as wide as it is, with a symbol before it or instead of it, painted like all text of the interface
/// and there for assistive technology.
class TextLabel : public QLabel
{
    Q_OBJECT

public:
    TextLabel(const QString& text, const TextStyle& style, const Colour& colour, QWidget* parent = nullptr);

    void setColour(const Colour& colour);
    /// @param size as of a text beside it
    void setSymbol(Symbol symbol, double size, const Colour& colour);
    /// Takes less room than its text where there is less, and ends with an ellipsis then. The symbol stays.
    void setElided(bool elided);
    /// Between symbol and text.
    void setSpacing(double spacing) { m_spacing = spacing; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] double symbolWidth() const;

    TextStyle m_style;
    Colour m_colour;
    std::optional<Symbol> m_symbol;
    double m_symbolSize = 0;
    Colour m_symbolColour;
    double m_spacing = 6;
    bool m_isElided = false;
};

} // namespace tarvin
