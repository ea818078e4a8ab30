#include "studio/StatusCapsule.h"

#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"
#include "ui/TextLine.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

constexpr Motion presenceMotion = Motion::easeInOut(200ms);
constexpr double inset = 11;
constexpr double spacing = 7;
constexpr double boltSize = 11;
constexpr double dotGlow = 2.5;

} // namespace

StatusCapsule::StatusCapsule(Kind kind, QWidget* parent)
    : QLabel(parent)
    , m_kind(kind)
    , m_presence(kind == Kind::message ? 1 : 0, [this] {
        if (m_presence.value() == 0 && m_presence.target() == 0) {
            hide();
            Q_EMIT resized();
        }
        update();
    })
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setVisible(kind == Kind::message);
}

TextStyle StatusCapsule::textStyle() const
{
    if (m_kind == Kind::lastTrigger)
        return {.size = 11, .weight = TextWeight::bold};
    return {.size = 10.5, .weight = TextWeight::medium};
}

double StatusCapsule::signWidth() const
{
    return m_kind == Kind::lastTrigger ? boltSize * symbolBoxPerSize : m_message.dotSize;
}

void StatusCapsule::setMessage(const StatusMessage& message)
{
    if (m_message == message)
        return;
    const bool hasNewRoom = m_message.text != message.text;
    m_message = message;
    setText(message.text);
    setToolTip(message.tooltip);
    if (hasNewRoom) {
        updateGeometry();
        Q_EMIT resized();
    }
    update();
}

void StatusCapsule::setNotice(const std::optional<QString>& notice)
{
    if (notice) {
        setText(*notice);
        show();
        updateGeometry();
        Q_EMIT resized();
    }
    if (parentWidget() && parentWidget()->isVisible())
        m_presence.animateTo(notice ? 1 : 0, presenceMotion);
    else
        m_presence.jumpTo(notice ? 1 : 0);
}

QSize StatusCapsule::sizeHint() const
{
    const double width = 2 * inset + signWidth() + spacing + textWidth(text(), textStyle());
    return {static_cast<int>(std::ceil(width)), capsuleHeight};
}

void StatusCapsule::paintEvent(QPaintEvent* /*event*/)
{
    using palette::mintTeal;
    using palette::white;
    const bool isNotice = m_kind == Kind::lastTrigger;
    QPainter painter(this);
    painter.setOpacity(std::clamp(m_presence.value(), 0.0, 1.0));
    const QRectF box = rect();
    const double radius = box.height() / 2;
    fillPlate(painter, box, radius, isNotice ? mintTeal.at(0.1) : white.at(0.035));
    strokePlate(painter, box, radius, 1, isNotice ? mintTeal.at(0.4) : white.at(0.06));
    const double middle = box.center().y();
    if (isNotice) {
        drawSymbol(painter, Symbol(u"bolt.fill"), {inset + signWidth() / 2, middle}, boltSize, mintTeal.toQColor());
    } else {
        const double size = m_message.dotSize;
        const QRectF dot(inset, middle - size / 2, size, size);
        if (m_message.dot.opacity > 0.95)
            drawShadow(painter, dot, {.colour = m_message.dot.at(0.6), .sigma = dotGlow, .cornerRadius = size / 2});
        fillPlate(painter, dot, size / 2, m_message.dot);
    }
    const double x = inset + signWidth() + spacing;
    const double room = box.width() - x - inset + 1; // sizes are rounded up
    drawText(painter, {x, 0, room, box.height()}, Qt::AlignLeft, elidedText(text(), textStyle(), room), textStyle(),
        isNotice ? mintTeal : m_message.textColour);
}

} // namespace tarvin
