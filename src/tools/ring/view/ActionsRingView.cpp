#include "tools/ring/view/ActionsRingView.h"

#include "tools/ring/RingItem.h"
#include "ui/PaintedButton.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Symbols.h"
#include "ui/TextLine.h"

#include <QPainter>
#include <QVBoxLayout>

#include <cmath>

namespace tarvin {

namespace {

constexpr PanelLook discLook{.radius = ActionsRingView::discSide / 2.0,
    .fill = {0.08, 0.08, 0.10, 0.92},
    .stroke = palette::mintTeal.at(0.35),
    .strokeWidth = 1.5,
    .shadowSigma = 24,
    .shadow = palette::black.at(0.6),
    .shadowOffsetY = 8};

constexpr double middle = ActionsRingView::discSide / 2.0;
constexpr double spacing = 3;

constexpr int centreSide = 80;
constexpr double centreSymbolSize = 20;
constexpr TextStyle centreText{.size = 10, .weight = TextWeight::bold, .face = TextFace::rounded};

constexpr int itemWidth = 72;
constexpr double itemDiscSide = 44;
constexpr double itemSymbolSize = 16;
constexpr TextStyle itemText{.size = 9, .weight = TextWeight::medium, .face = TextFace::rounded};

} // namespace

class ActionsRingView::CentreButton : public PaintedButton
{
public:
    explicit CentreButton(QWidget* parent)
        : PaintedButton(parent)
    {
        setText(ActionsRingView::tr("Actions Ring"));
        setFocusPolicy(Qt::NoFocus);
        setGeometry(static_cast<int>(middle) - centreSide / 2, static_cast<int>(middle) - centreSide / 2, centreSide,
            centreSide);
    }
    [[nodiscard]] QSize sizeHint() const override { return {centreSide, centreSide}; }

protected:
    bool hitButton(const QPoint& position) const override
    {
        const QPointF fromMiddle = QPointF(position) - QRectF(rect()).center();
        return std::hypot(fromMiddle.x(), fromMiddle.y()) <= centreSide / 2.0;
    }
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        fillPlate(painter, rect(), centreSide / 2.0, palette::white.at(0.06));
        const double symbolHeight = centreSymbolSize * symbolBoxPerSize;
        const double top = (height() - symbolHeight - spacing - lineHeight(centreText)) / 2;
        drawSymbol(painter, Symbol(u"circle.grid.cross.fill"), {width() / 2.0, top + symbolHeight / 2},
            centreSymbolSize, palette::mintTeal);
        drawText(painter, QRectF(0, top + symbolHeight + spacing, width(), lineHeight(centreText)), Qt::AlignHCenter,
            text(), centreText, palette::white);
    }
};

class ActionsRingView::ItemButton : public PaintedButton
{
public:
    ItemButton(const RingItem& item, Point offset, QWidget* parent)
        : PaintedButton(parent)
        , m_symbol(Symbol::namedOrPlaceholder(item.icon))
        , m_middle(QPointF(middle + offset.x, middle + offset.y))
    {
        setText(item.title.toString());
        setFocusPolicy(Qt::NoFocus);
        // The button stands on whole points, its picture on exact ones.
        const double height = itemDiscSide + spacing + lineHeight(itemText);
        const QRectF box(m_middle.x() - itemWidth / 2.0, m_middle.y() - height / 2, itemWidth, height);
        setGeometry(box.toAlignedRect());
        m_box = box.translated(-pos());
    }
    [[nodiscard]] QSize sizeHint() const override { return size(); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QRectF disc(m_box.center().x() - itemDiscSide / 2, m_box.top(), itemDiscSide, itemDiscSide);
        fillPlate(painter, disc, itemDiscSide / 2, palette::white.at(0.12));
        drawSymbol(painter, m_symbol, disc.center(), itemSymbolSize, palette::mintTeal);
        drawText(painter, QRectF(m_box.left(), disc.bottom() + spacing, m_box.width(), lineHeight(itemText)),
            Qt::AlignHCenter, elidedText(text(), itemText, m_box.width()), itemText, palette::white);
    }

private:
    Symbol m_symbol;
    QPointF m_middle;
    QRectF m_box;
};

ActionsRingView::ActionsRingView(
    const std::function<void(const ConfiguredAction&)>& onSelect, std::function<bool()> hasCompositor)
    : PanelWindow({discSide, discSide}, discLook, PanelFocus::accepts, std::move(hasCompositor))
{
    setWindowTitle(tr("Actions Ring"));
    auto* const disc = new QWidget;
    disc->setFixedSize(discSide, discSide);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(disc);

    connect(new CentreButton(disc), &QAbstractButton::clicked, this, &ActionsRingView::dismissed);
    for (std::size_t index = 0; index < ringItems.size(); ++index) {
        const RingItem& item = ringItems[index];
        connect(new ItemButton(item, ringOffset(index), disc), &QAbstractButton::clicked, this,
            [onSelect, action = item.action] { onSelect(ConfiguredAction(action)); });
    }
}

} // namespace tarvin
