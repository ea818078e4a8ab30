#pragma once

#include "ui/OutlinedButton.h"
#include "ui/PanelWindow.h"
#include "ui/Symbols.h"

#include <QString>

#include <functional>
#include <vector>

namespace tarvin {

/// The look of every tool panel's plate.
[[nodiscard]] PanelLook toolPlateLook();

/// A button that is nothing but a symbol or a text.
/// @param room the side of the area that takes clicks, for a button with only a symbol
[[nodiscard]] ButtonLook plainSymbolLook(double symbolSize, const Colour& colour, double room);
[[nodiscard]] ButtonLook plainTextLook(const TextStyle& text, const Colour& colour, double inset, double height);

/// A strip of the plate from edge to edge.
struct PlateBand
{
    int top = 0;
    int height = 0;
    Colour fill;
};

/// The plate of a tool panel with a header: symbol, title, and a button to close it. Esc closes it too, wherever the
/// keyboard is. It only says so; who owns the panel fades it out.
class ToolPlate : public PanelWindow
{
    Q_OBJECT

public:
    struct Heading
    {
        Symbol symbol;
        QString title; ///< the window's title too
    };

    static constexpr int headerHeight = 48;
    static constexpr int footerHeight = 28;
    static constexpr int sideInset = 16;
    static constexpr int hairlineHeight = 1;

    ToolPlate(const QSize& plateSize, const Heading& heading, std::function<bool()> hasCompositor);

Q_SIGNALS:
    /// The user wants the panel closed.
    void dismissed();
    /// The panel comes up, each time.
    void appeared();

protected:
    /// Everything of the panel stands in it, at places counted from the corner of the plate.
    [[nodiscard]] QWidget& content();
    /// Puts the widget into the header, to the left of what was put there before, in the middle of its height.
    void addToHeader(QWidget& widget);
    void addBand(const PlateBand& band);

    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class Content;

    Content* m_content;
    int m_headerEnd; ///< where the room in the header ends
};

} // namespace tarvin
