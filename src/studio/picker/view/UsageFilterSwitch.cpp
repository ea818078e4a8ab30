#include "studio/picker/view/UsageFilterSwitch.h"

#include "ui/PaintedButton.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/TextLine.h"

#include <QHBoxLayout>
#include <QPainter>

#include <cmath>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr Motion filterMotion = Motion::easeInOut(std::chrono::milliseconds(180));
constexpr TextStyle words{.size = 9.5, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr double insetX = 7;
constexpr double insetY = 3;
constexpr int spacing = 3;

} // namespace

/// One of the two. A radio button for assistive technology.
class UsageFilterPill : public PaintedButton
{
public:
    UsageFilterPill(ActionUsageFilter filter, QWidget* parent)
        : PaintedButton(parent)
        , m_share(0, [this] { update(); })
    {
        setText(rawValue(filter).toString());
        setCheckable(true);
        setAutoExclusive(true);
    }

    void setCurrent(bool isCurrent)
    {
        setChecked(isCurrent);
        if (isVisible())
            m_share.animateTo(isCurrent ? 1 : 0, filterMotion);
        else
            m_share.jumpTo(isCurrent ? 1 : 0);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        return {static_cast<int>(std::ceil(textWidth(text(), words) + 2 * insetX)),
            static_cast<int>(std::lround(lineHeight(words) + 2 * insetY))};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QRectF box = rect();
        fillPlate(
            painter, box, box.height() / 2, mixed(white.at(0.04 + 0.04 * hover()), mintTeal.at(0.18), m_share.value()));
        drawText(painter, box, Qt::AlignHCenter, text(), words, mixed(white.at(0.45), mintTeal, m_share.value()));
        drawFocusRing(painter, box, box.height() / 2);
    }

private:
    AnimatedValue m_share; ///< how far it looks current, from 0 to 1
};

UsageFilterSwitch::UsageFilterSwitch(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    for (const ActionUsageFilter filter : allActionUsageFilters) {
        auto* const pill = new UsageFilterPill(filter, this);
        // Not at each click: assistive technology toggles without one.
        connect(pill, &QAbstractButton::toggled, this, [this, filter](bool isCurrent) {
            if (isCurrent)
                Q_EMIT filterChosen(filter);
        });
        row->addWidget(pill);
        m_pills[static_cast<std::size_t>(filter)] = pill;
    }
    adjustSize();
}

void UsageFilterSwitch::setFilter(ActionUsageFilter filter)
{
    for (const ActionUsageFilter each : allActionUsageFilters)
        m_pills[static_cast<std::size_t>(each)]->setCurrent(each == filter);
}

} // namespace tarvin
