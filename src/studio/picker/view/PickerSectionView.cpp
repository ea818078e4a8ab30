#include "studio/picker/view/PickerSectionView.h"

#include "studio/picker/ActionPickerModel.h"
#include "studio/picker/view/PickerMetrics.h"
#include "studio/picker/view/PickerSectionHeader.h"
#include "studio/picker/view/UsageFilterSwitch.h"

#include <QGraphicsOpacityEffect>

#include <algorithm>
#include <cmath>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

using namespace pickermetrics;

constexpr Motion foldMotion = Motion::easeInOut(200ms);
constexpr Motion filterMotion = Motion::easeInOut(180ms);
constexpr int bodyGap = 10; // 6 between heading and body, and 4 above the rows
constexpr int firstHeaderHeight = 16; // with the switch
constexpr int switchRight = 38; // from the pane's edge

} // namespace

PickerSectionView::PickerSectionView(
    PickerSection section, ActionPickerModel& model, const MakeCardBody& makeCardBody, QWidget* parent)
    : QWidget(parent)
    , m_section(section)
    , m_model(model)
    , m_header(new PickerSectionHeader(this))
    , m_body(new QWidget(this))
    , m_stack(new EntryStack(model, makeCardBody, m_body))
    , m_share(1,
          [this] {
              layOut();
              m_body->setVisible(m_share.value() > 0 || m_share.target() > 0);
              Q_EMIT heightChanged();
          })
    , m_opacity(1,
          [this] {
              if (m_opacity.value() == 1)
                  m_stack->setGraphicsEffect(nullptr);
              else if (auto* const effect = qobject_cast<QGraphicsOpacityEffect*>(m_stack->graphicsEffect()))
                  effect->setOpacity(m_opacity.value());
          })
    , m_filter(model.usageFilter())
{
    connect(m_header, &QAbstractButton::clicked, this, [this] { m_model.toggle(m_section); });
    connect(m_stack, &EntryStack::heightChanged, this, [this] {
        layOut();
        Q_EMIT heightChanged();
    });
    if (section == PickerSection::frequentlyUsed) {
        m_switch = new UsageFilterSwitch(this);
        m_switch->setFilter(m_filter);
        connect(m_switch, &UsageFilterSwitch::filterChosen, this,
            [this](ActionUsageFilter filter) { m_model.setUsageFilter(filter); });
    }
}

void PickerSectionView::follow()
{
    m_header->setHeading(m_model.sectionHeading(m_section).toString());
    m_stack->setAccessibleName(m_header->text());
    m_stack->showRows(m_model.rows(m_section), RowDetail::titleOnly);
    const bool isExpanded = m_model.isExpanded(m_section);
    m_header->setExpanded(isExpanded);
    if (m_switch && m_filter != m_model.usageFilter()) {
        m_filter = m_model.usageFilter();
        m_switch->setFilter(m_filter);
        fadeRowsIn();
    }
    m_body->setVisible(m_share.value() > 0 || isExpanded);
    if (isVisible())
        m_share.animateTo(isExpanded ? 1 : 0, foldMotion);
    else
        m_share.jumpTo(isExpanded ? 1 : 0);
    layOut();
}

void PickerSectionView::fadeRowsIn()
{
    if (!m_stack->isVisible())
        return;
    auto* const effect = new QGraphicsOpacityEffect; // the stack owns it
    effect->setOpacity(0);
    m_stack->setGraphicsEffect(effect);
    m_opacity.jumpTo(0);
    m_opacity.animateTo(1, filterMotion);
}

int PickerSectionView::headerHeight() const
{
    return m_switch ? firstHeaderHeight : PickerSectionHeader::lineHeight;
}

int PickerSectionView::currentHeight() const
{
    const int rows = m_stack->currentHeight();
    return headerHeight() + static_cast<int>(std::lround(m_share.value() * (rows == 0 ? 0 : bodyGap + rows)));
}

void PickerSectionView::layOut()
{
    // The header reaches beyond its line, so the view begins above it.
    const int reach = PickerSectionHeader::reach;
    const int top = reach + (headerHeight() - PickerSectionHeader::lineHeight) / 2;
    m_header->setGeometry(0, top - reach, paneWidth, m_header->sizeHint().height());
    if (m_switch) {
        const QSize size = m_switch->sizeHint();
        m_switch->setGeometry(
            QRect(QPoint(paneWidth - switchRight - size.width(), m_header->geometry().center().y() - size.height() / 2),
                size));
        m_switch->raise();
    }
    m_stack->layOut();
    const int bodyTop = reach + headerHeight();
    m_body->setGeometry(0, bodyTop, paneWidth, reach + currentHeight() - bodyTop);
    // The rows slide out from under the heading's lower edge.
    m_stack->move(listInset, bodyGap);
    resize(paneWidth, reach + std::max(currentHeight(), headerHeight() + reach));
}

} // namespace tarvin
