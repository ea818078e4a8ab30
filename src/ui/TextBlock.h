#pragma once

#include "ui/Colour.h"
#include "ui/Fonts.h"

#include <QLabel>
#include <QStringList>

namespace tarvin {

/// The text in lines that fit, broken between words; a word that is wider than a line stands alone in one.
[[nodiscard]] QStringList wrappedLines(const QString& text, const TextStyle& style, double width);

/// A text that takes as many lines as it needs at the width it gets, painted like all text of the interface and there
/// for assistive technology.
class TextBlock : public QLabel
{
    Q_OBJECT

public:
    TextBlock(const QString& text, const TextStyle& style, const Colour& colour, QWidget* parent = nullptr);

    void setColour(const Colour& colour);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TextStyle m_style;
    Colour m_colour;
};

} // namespace tarvin
