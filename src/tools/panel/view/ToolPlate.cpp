#include "tools/panel/view/ToolPlate.h"

#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/TextLabel.h"
#include "ui/TextLine.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>

namespace tarvin {

namespace {

constexpr double plateRadius = 12;
constexpr double strokeWidth = 1.2;
constexpr Colour plateFill{0.08, 0.08, 0.10, 0.96};
constexpr Colour plateStroke = palette::mintTeal.at(0.35);
constexpr Colour headerFill{0.09, 0.09, 0.11};
constexpr Colour clear = palette::white.at(0);

constexpr double headingSymbolSize = 15;
constexpr int headerSpacing = 10;
constexpr TextStyle headingText{.size = 13, .weight = TextWeight::bold, .face = TextFace::rounded};

constexpr int closeButtonSide = 24;
constexpr double closeSymbolSize = 11;

} // namespace

PanelLook toolPlateLook()
{
    return {.radius = plateRadius,
        .fill = plateFill,
        .stroke = clear, // drawn above the bands
        .strokeWidth = strokeWidth,
        .shadowSigma = 18,
        .shadow = palette::black.at(0.5),
        .shadowOffsetY = 10};
}

ButtonLook plainSymbolLook(double symbolSize, const Colour& colour, double room)
{
    return {.height = room,
        .radius = room / 2,
        .inset = (room - symbolSize * symbolBoxPerSize) / 2,
        .symbolSize = symbolSize,
        .spacing = 0,
        .text = {},
        .symbolColour = colour,
        .textColour = clear,
        .fill = clear,
        .hoveredFill = palette::white.at(0.08),
        .stroke = clear};
}

ButtonLook plainTextLook(const TextStyle& text, const Colour& colour, double inset, double height)
{
    return {.height = height,
        .radius = 6,
        .inset = inset,
        .symbolSize = 0,
        .spacing = 0,
        .text = text,
        .symbolColour = clear,
        .textColour = colour,
        .fill = clear,
        .hoveredFill = palette::white.at(0.06),
        .stroke = clear};
}

/// Paints what lies on the plate from edge to edge, within its rounded corners, and the rim above it.
class ToolPlate::Content : public QWidget
{
public:
    explicit Content(Symbol symbol)
        : m_symbol(symbol)
    { }

    void addBand(const PlateBand& band) { m_bands.push_back(band); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath plate;
        plate.addRoundedRect(rect(), plateRadius, plateRadius);
        painter.setClipPath(plate);
        for (const PlateBand& band : m_bands)
            painter.fillRect(QRect(0, band.top, width(), band.height), band.fill.toQColor());
        painter.setClipping(false);
        strokePlate(painter, rect(), plateRadius, strokeWidth, plateStroke);
        drawSymbol(painter, m_symbol, {sideInset + headingSymbolSize * symbolBoxPerSize / 2, headerHeight / 2.0},
            headingSymbolSize, palette::mintTeal);
    }

private:
    Symbol m_symbol;
    std::vector<PlateBand> m_bands;
};

ToolPlate::ToolPlate(const QSize& plateSize, const Heading& heading, std::function<bool()> hasCompositor)
    : PanelWindow(plateSize, toolPlateLook(), PanelFocus::accepts, std::move(hasCompositor))
    , m_content(new Content(heading.symbol))
    , m_headerEnd(plateSize.width() - sideInset)
{
    setWindowTitle(heading.title);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_content);
    m_content->setFixedSize(plateSize);

    addBand({.top = 0, .height = headerHeight, .fill = headerFill});
    addBand({.top = headerHeight, .height = hairlineHeight, .fill = palette::white.at(0.08)});

    auto* const title = new TextLabel(heading.title, headingText, palette::white, m_content);
    title->adjustSize();
    title->move(sideInset + static_cast<int>(headingSymbolSize * symbolBoxPerSize) + headerSpacing,
        (headerHeight - title->height()) / 2);

    ButtonLook closeLook = plainSymbolLook(closeSymbolSize, palette::white.at(0.6), closeButtonSide);
    closeLook.fill = palette::white.at(0.06);
    closeLook.hoveredFill = palette::white.at(0.12);
    auto* const close = new OutlinedButton(closeLook, m_content);
    close->setSymbol(Symbol(u"xmark"));
    close->setTip(tr("Close"));
    connect(close, &QAbstractButton::clicked, this, &ToolPlate::dismissed);
    addToHeader(*close);
}

QWidget& ToolPlate::content()
{
    return *m_content;
}

void ToolPlate::addToHeader(QWidget& widget)
{
    widget.adjustSize();
    widget.move(m_headerEnd - widget.width(), (headerHeight - widget.height()) / 2);
    m_headerEnd -= widget.width() + headerSpacing;
}

void ToolPlate::addBand(const PlateBand& band)
{
    m_content->addBand(band);
}

void ToolPlate::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT dismissed();
    else
        PanelWindow::keyPressEvent(event);
}

void ToolPlate::showEvent(QShowEvent* event)
{
    PanelWindow::showEvent(event);
    if (!event->spontaneous())
        Q_EMIT appeared();
}

} // namespace tarvin
