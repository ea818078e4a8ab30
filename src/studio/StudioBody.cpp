#include "studio/StudioBody.h"

#include "studio/StatusAndMonitorSection.h"
#include "studio/TopSettingsControls.h"
#include "studio/keyboard/MacBookAirKeyboardView.h"

#include <algorithm>
#include <cmath>

namespace tarvin {

namespace {

constexpr int side = 28;
constexpr int top = 16;
constexpr int bottom = 20;
constexpr int leastGap = 20; // between the controls and the keyboard
constexpr int statusGap = 20;
static_assert(MacBookAirKeyboardView::margins.left() == side, "the keyboard's margin reaches to the edge");

/// Keyboard, gap and messages.
double groupHeight(int width)
{
    return keyboardGeometry(width - 2 * side).chassis.height() + statusGap + 26;
}

} // namespace

StudioBody::StudioBody(const StudioCollaborators& collaborators, QWidget* parent)
    : QWidget(parent)
    , m_controls(new TopSettingsControls(collaborators, this))
    , m_keyboard(new MacBookAirKeyboardView(collaborators.keyProfile, collaborators.tactileEngine, this))
    , m_status(new StatusAndMonitorSection(collaborators, this))
{
    // Its shadow lies under everything.
    m_keyboard->lower();
}

int StudioBody::heightForWidth(int width) const
{
    return top + TopSettingsControls::rowHeight + leastGap + static_cast<int>(std::ceil(groupHeight(width))) + bottom;
}

QSize StudioBody::minimumSizeHint() const
{
    return {0, heightForWidth(width())};
}

void StudioBody::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_controls->setGeometry(side, top, width() - 2 * side, TopSettingsControls::rowHeight);
    const double free = height() - bottom - (top + TopSettingsControls::rowHeight) - groupHeight(width());
    const double chassisTop = top + TopSettingsControls::rowHeight + std::max<double>(free / 2, leastGap);
    const QMargins margins = MacBookAirKeyboardView::margins;
    m_keyboard->setGeometry(
        0, static_cast<int>(chassisTop) - margins.top(), width(), MacBookAirKeyboardView::heightForViewWidth(width()));
    const double statusTop = chassisTop + groupHeight(width()) - 26;
    m_status->setGeometry(side, static_cast<int>(statusTop), width() - 2 * side, m_status->height());
}

} // namespace tarvin
