#include "studio/picker/view/TestButton.h"

#include "studio/picker/PickerTexts.h"
#include "studio/picker/view/PickerMetrics.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Symbols.h"
#include "ui/TextLine.h"

#include <QPainter>

#include <algorithm>

namespace tarvin {

namespace {

constexpr Motion confirmMotion = Motion::spring(0.25, 0.7);
constexpr Motion returnMotion = Motion::easeInOut(std::chrono::milliseconds(350));
constexpr Colour fill{0.0, 0.82, 0.62};
constexpr Colour hoveredFill{0.1, 0.87, 0.68};
constexpr double radius = 6;
constexpr double symbolSize = 10;
constexpr double spacing = 6;
constexpr TextStyle words{.size = 10, .weight = TextWeight::bold, .face = TextFace::rounded};

void drawContent(QPainter& painter, const QRectF& box, Symbol symbol, const QString& text)
{
    constexpr double symbolWidth = symbolSize * symbolBoxPerSize;
    const double width = symbolWidth + spacing + textWidth(text, words);
    const double left = box.center().x() - width / 2;
    drawSymbol(painter, symbol, {left + symbolWidth / 2, box.center().y()}, symbolSize, palette::black.toQColor());
    drawText(painter, {left + symbolWidth + spacing, box.top(), width, box.height()}, Qt::AlignLeft, text, words,
        palette::black);
}

} // namespace

TestButton::TestButton(QWidget* parent)
    : PaintedButton(parent)
    , m_share(0, [this] { update(); })
{ }

void TestButton::showText(const QString& text, bool isConfirmation)
{
    setText(text);
    if (isConfirmation)
        m_confirmation = text;
    if (m_isConfirmation == isConfirmation)
        return;
    m_isConfirmation = isConfirmation;
    if (isVisible())
        m_share.animateTo(isConfirmation ? 1 : 0, isConfirmation ? confirmMotion : returnMotion);
    else
        m_share.jumpTo(isConfirmation ? 1 : 0);
}

QSize TestButton::sizeHint() const
{
    return {pickermetrics::bodyWidth, buttonHeight};
}

void TestButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillPlate(painter, rect(), radius, mixed(fill, hoveredFill, hover()));
    const double share = std::clamp(m_share.value(), 0.0, 1.0);
    if (share < 1) {
        painter.setOpacity(1 - share);
        drawContent(painter, rect(), Symbol(u"play.fill"), testActionText.toString());
    }
    if (share > 0) {
        painter.setOpacity(share);
        drawContent(painter, rect(), Symbol(u"checkmark.circle.fill"), m_confirmation);
    }
    painter.setOpacity(1);
    drawFocusRing(painter, rect(), radius);
}

} // namespace tarvin
