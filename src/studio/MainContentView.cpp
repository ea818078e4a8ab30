#include "studio/MainContentView.h"

#include "interception/AccessibilityHelper.h"
#include "interception/EventTapManager.h"
#include "studio/AccessibilityWarningBanner.h"
#include "studio/BottomFooterBar.h"
#include "studio/StudioBody.h"
#include "studio/TopHeaderBar.h"
#include "studio/TopSettingsControls.h"
#include "studio/keyboard/MacBookAirKeyboardView.h"
#include "ui/Palette.h"

#include <QPainter>
#include <QScrollArea>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace tarvin {

namespace {

constexpr Motion pickerMotion = Motion::spring(0.3, 0.8);
constexpr int bannerSide = 16;
constexpr int bannerTop = 8;
constexpr int dividerWidth = 1;

} // namespace

MainContentView::MainContentView(const StudioCollaborators& collaborators, StudioSurfaces surfaces, QWidget* parent)
    : QWidget(parent)
    , m_with(collaborators)
    , m_surfaces(std::move(surfaces))
    , m_header(new TopHeaderBar(m_with, this))
    , m_banner(new AccessibilityWarningBanner(this))
    , m_scroll(new QScrollArea(this))
    , m_body(new StudioBody(m_with))
    , m_footer(new BottomFooterBar(m_with, this))
    , m_pickerShare(0, [this] {
        if (m_pickerShare.value() == 0 && m_pickerShare.target() == 0)
            removePicker();
        layOut();
    })
{
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->viewport()->setAutoFillBackground(false);
    m_body->setAutoFillBackground(false);
    m_scroll->setWidget(m_body);
    m_body->setAutoFillBackground(false); // the area turns it on

    const auto showSettings = [this] {
        if (m_surfaces.showSettings)
            m_surfaces.showSettings(*window());
    };
    connect(m_header, &TopHeaderBar::settingsRequested, this, showSettings);
    connect(&m_body->controls(), &TopSettingsControls::settingsRequested, this, showSettings);
    connect(m_footer, &BottomFooterBar::settingsRequested, this, showSettings);
    connect(m_header, &TopHeaderBar::addApplicationRequested, this, [this] {
        if (m_surfaces.showAddApplication)
            m_surfaces.showAddApplication(*window());
    });
    connect(m_banner, &AccessibilityWarningBanner::authorizeRequested, this,
        [this] { m_with.accessibilityHelper.openAccessibilitySettings(); });
    connect(&m_with.eventTapManager, &EventTapManager::hasAccessibilityPermissionChanged, this,
        &MainContentView::followPermission);
    connect(&m_body->keyboard(), &MacBookAirKeyboardView::selectedKeyChanged, this, &MainContentView::followSelection);
    setFocusPolicy(Qt::ClickFocus); // a click beside the controls takes the keyboard from them
    setMinimumSize(leastSize);
    resize(idealSize);
    followPermission();
}

std::optional<FKey> MainContentView::selectedKey() const
{
    return m_body->keyboard().selectedKey();
}

void MainContentView::followPermission()
{
    m_banner->setVisible(!m_with.eventTapManager.hasAccessibilityPermission());
    layOut();
}

void MainContentView::followSelection()
{
    const auto key = selectedKey();
    if (!key) {
        takeFocusFromPicker();
        if (isVisible())
            m_pickerShare.animateTo(0, pickerMotion);
        else
            m_pickerShare.jumpTo(0);
        return;
    }
    takeFocusFromPicker();
    removePicker();
    if (!m_surfaces.makeActionPicker)
        return;
    m_pickerKey = key;
    m_picker = m_surfaces.makeActionPicker(*key, [this] { m_body->keyboard().setSelectedKey(std::nullopt); });
    m_picker->setParent(this);
    m_picker->show();
    if (isVisible())
        m_pickerShare.animateTo(1, pickerMotion);
    else
        m_pickerShare.jumpTo(1);
    layOut();
}

void MainContentView::takeFocusFromPicker()
{
    if (m_picker && m_pickerKey && m_picker->isAncestorOf(focusWidget()))
        m_body->keyboard().focusKey(*m_pickerKey);
}

void MainContentView::removePicker()
{
    if (!m_picker)
        return;
    m_picker->hide();
    // Later, because the pane's own button may have led here.
    m_picker->deleteLater();
    m_picker = nullptr;
}

void MainContentView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void MainContentView::layOut()
{
    int column = width();
    if (m_picker) {
        const int paneWidth = m_picker->sizeHint().width();
        // A spring swings over; the pane doesn't leave the edge.
        const double share = std::clamp(m_pickerShare.value(), 0.0, 1.0);
        column = width() - static_cast<int>(std::lround(share * (paneWidth + dividerWidth)));
        m_picker->setGeometry(column + dividerWidth, 0, paneWidth, height());
    }
    m_header->setGeometry(0, 0, column, TopHeaderBar::barHeight);
    int y = TopHeaderBar::barHeight;
    if (!m_banner->isHidden()) {
        m_banner->setGeometry(bannerSide, y + bannerTop, column - 2 * bannerSide, m_banner->height());
        y += bannerTop + m_banner->height();
    }
    m_footer->setGeometry(0, height() - BottomFooterBar::barHeight, column, BottomFooterBar::barHeight);
    m_scroll->setGeometry(0, y, column, height() - BottomFooterBar::barHeight - y);
    fitBody();
    // A pane that waits beyond the edge for its way in changes nothing in sight.
    if (column != m_columnWidth)
        update();
    m_columnWidth = column;
}

void MainContentView::fitBody()
{
    const QSize room = m_scroll->size();
    int width = room.width();
    // With a scroll bar the body is narrower, which makes the keyboard no higher.
    if (m_body->heightForWidth(width) > room.height())
        width -= m_scroll->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    m_body->resize(width, std::max(room.height(), m_body->heightForWidth(width)));
}

void MainContentView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette::windowBackground);
    if (m_picker)
        painter.fillRect(m_picker->x() - dividerWidth, 0, dividerWidth, height(), palette::white.at(0.08));
}

} // namespace tarvin
