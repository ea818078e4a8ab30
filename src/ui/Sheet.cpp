#include "ui/Sheet.h"

#include "ui/Palette.h"
#include "ui/Shadows.h"
#include "ui/SheetPanel.h"

#include <QApplication>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvin {

namespace {

using namespace std::chrono_literals;

constexpr auto presenceMotion = Motion::easeInOut(180ms);
constexpr double dimming = 0.5;
/// How far above its place the panel starts.
constexpr double rise = 10;
constexpr double wideShadow = 22;
constexpr double wideShadowOffset = 12;
constexpr double tightShadow = 4;
constexpr double tightShadowOffset = 2;

} // namespace

Sheet* Sheet::present(QWidget& window, const std::function<SheetPanel*(Close close)>& makePanel)
{
    if (over(window))
        return nullptr;
    auto* const sheet = new Sheet(window);
    sheet->setPanel(makePanel([sheet = QPointer(sheet)] {
        if (sheet)
            sheet->leave();
    }));
    return sheet;
}

Sheet* Sheet::over(const QWidget& window)
{
    const auto sheets = window.findChildren<Sheet*>(QString(), Qt::FindDirectChildrenOnly);
    const auto found = std::ranges::find_if(sheets, [](const Sheet* sheet) { return !sheet->m_isLeaving; });
    return found != sheets.end() ? *found : nullptr;
}

Sheet::Sheet(QWidget& window)
    : QWidget(&window)
    , m_window(window)
    , m_focusBefore(window.focusWidget())
    , m_presence(0, [this] { follow(); })
{
    window.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) { keepFocus(now); });
}

Sheet::~Sheet()
{
    // The panel still goes, perhaps with the keyboard, and the base class is not to hear of it.
    disconnect(qApp, nullptr, this, nullptr);
}

void Sheet::setPanel(SheetPanel* panel)
{
    m_panel = panel;
    m_panel->setParent(this);
    fit();
    show();
    raise();
    m_panel->setFocus(Qt::OtherFocusReason);
    if (m_window.isVisible())
        m_presence.animateTo(1, presenceMotion);
    else
        m_presence.jumpTo(1);
    follow();
}

void Sheet::leave()
{
    if (std::exchange(m_isLeaving, true))
        return;
    setAttribute(Qt::WA_TransparentForMouseEvents);
    if (m_focusBefore)
        m_focusBefore->setFocus(Qt::OtherFocusReason);
    else if (QWidget* const inside = m_window.focusWidget())
        inside->clearFocus();
    if (m_window.isVisible())
        m_presence.animateTo(0, presenceMotion);
    else
        m_presence.jumpTo(0);
    follow();
}

void Sheet::fit()
{
    setGeometry(m_window.rect());
    const double lift = rise * (1 - m_presence.value());
    m_panel->move(
        (width() - m_panel->width()) / 2, (height() - m_panel->height()) / 2 - static_cast<int>(std::lround(lift)));
}

void Sheet::follow()
{
    if (m_isLeaving && m_presence.value() == 0) {
        hide();
        deleteLater(); // what asked for the end may be a control in the panel
        return;
    }
    if (m_presence.value() == 1) {
        m_panel->setGraphicsEffect(nullptr);
    } else {
        auto* effect = qobject_cast<QGraphicsOpacityEffect*>(m_panel->graphicsEffect());
        if (!effect) {
            effect = new QGraphicsOpacityEffect;
            m_panel->setGraphicsEffect(effect);
        }
        effect->setOpacity(m_presence.value());
    }
    fit();
    update();
}

bool Sheet::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
        event->accept();
        return true;
    default:
        return QWidget::event(event);
    }
}

bool Sheet::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Resize)
        fit();
    return QWidget::eventFilter(watched, event);
}

bool Sheet::isReachable(const QWidget& widget) const
{
    return m_panel->isAncestorOf(&widget) && widget.isVisible() && widget.isEnabled()
        && (widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy();
}

bool Sheet::focusNextPrevChild(bool next)
{
    // The window's chain leads out of the sheet and back in; what lies outside is stepped over.
    QWidget* const start = m_window.focusWidget() ? m_window.focusWidget() : m_panel;
    QWidget* widget = start;
    do {
        widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
        if (widget != start && isReachable(*widget)) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (widget != start);
    return true;
}

void Sheet::keepFocus(QWidget* now)
{
    if (m_isLeaving || !m_panel || !m_window.isActiveWindow())
        return;
    if (now && isAncestorOf(now)) {
        m_focusInside = now;
    } else if (!now) {
        m_panel->setFocus(Qt::OtherFocusReason); // who had it may be on the way out
    } else if (m_window.isAncestorOf(now)) {
        QWidget* const inside = m_focusInside && m_focusInside->isVisible() ? m_focusInside.data() : m_panel;
        inside->setFocus(Qt::OtherFocusReason);
    }
}

void Sheet::keyPressEvent(QKeyEvent* event)
{
    event->accept(); // the window is not to hear of any key
    if (event->key() == Qt::Key_Escape)
        leave();
}

void Sheet::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setOpacity(m_presence.value());
    painter.fillRect(rect(), palette::black.at(dimming));
    const QRectF box = m_panel->geometry();
    drawShadow(painter, box.translated(0, wideShadowOffset),
        {.colour = palette::black.at(0.55), .sigma = wideShadow, .cornerRadius = SheetPanel::radius});
    drawShadow(painter, box.translated(0, tightShadowOffset),
        {.colour = palette::black.at(0.25), .sigma = tightShadow, .cornerRadius = SheetPanel::radius});
}

} // namespace tarvin
