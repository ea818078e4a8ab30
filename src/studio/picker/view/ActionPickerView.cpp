#include "studio/picker/view/ActionPickerView.h"

#include "studio/picker/ActionPickerModel.h"
#include "studio/picker/view/PickerAccessibility.h"
#include "studio/picker/view/PickerHeader.h"
#include "studio/picker/view/PickerList.h"
#include "studio/picker/view/PickerMetrics.h"
#include "studio/picker/view/StatusBannerView.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/TextField.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>

namespace tarvin {

namespace {

using namespace pickermetrics;
using palette::mintTeal;
using palette::white;

constexpr int idealHeight = 800;
constexpr int searchHeight = 30;
constexpr int searchGap = 10; // above and below the field
constexpr int bannerTop = headerHeight + dividerHeight;
constexpr int searchTop = bannerTop + StatusBannerView::bannerHeight + searchGap;
constexpr int lowerDividerTop = searchTop + searchHeight + searchGap;
constexpr int listTop = lowerDividerTop + dividerHeight;
constexpr Colour divider = white.at(0.08);

/// Mint while it searches, whether or not it has the keyboard.
constexpr FieldLook searchLook(bool isSearching)
{
    return {.height = searchHeight,
        .radius = 8,
        .inset = 12,
        .symbolSize = 13,
        .text = {.size = 13, .weight = TextWeight::regular, .face = TextFace::rounded},
        .fill = white.at(0.05),
        .stroke = isSearching ? mintTeal.at(0.45) : white.at(0.08),
        .focusedStroke = isSearching ? mintTeal.at(0.45) : white.at(0.3),
        .symbolGap = 8,
        .textColour = white,
        .symbolColour = isSearching ? mintTeal : white.at(0.4),
        .filledSymbolColour = isSearching ? mintTeal : white.at(0.4),
        .clearSymbolSize = 12,
        .clearSymbolColour = white.at(0.55)};
}

constexpr int resetInset = 6; // of the words in the button, whose plate shows only under the pointer

constexpr ButtonLook resetLook(bool canReset)
{
    const Colour colour = canReset ? palette::orange : white.at(0.35);
    return {.height = 28,
        .radius = 6,
        .inset = resetInset,
        .symbolSize = 11,
        .spacing = 6,
        .text = {.size = 11, .weight = TextWeight::medium, .face = TextFace::rounded},
        .symbolColour = colour,
        .textColour = colour,
        .fill = white.at(0),
        .hoveredFill = white.at(0.06),
        .stroke = white.at(0),
        .disabledOpacity = 1};
}

} // namespace

ActionPickerView::ActionPickerView(
    ActionPickerModel& model, std::function<void()> onClose, MakeCardBody makeCardBody, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_onClose(std::move(onClose))
    , m_header(new PickerHeader(model.key(), this))
    , m_banner(new StatusBannerView(this))
    , m_search(new TextField(searchPrompt.toString(), Symbol(u"magnifyingglass"), searchLook(false), this))
    , m_list(new PickerList(model, std::move(makeCardBody), this))
    , m_reset(new OutlinedButton(resetLook(false), this))
{
    installPickerAccessibility();
    setAccessibleName(pickerTitle.toString());
    m_search->installEventFilter(this);
    m_reset->setSymbol(Symbol(u"arrow.counterclockwise"));
    m_reset->setText(resetText.toString());
    connect(&m_header->closeButton(), &QAbstractButton::clicked, this, [this] { m_onClose(); });
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString& text) { m_model.setSearchText(text); });
    connect(m_reset, &QAbstractButton::clicked, this, [this] { m_model.reset(); });
    connect(&m_model, &ActionPickerModel::changed, this, &ActionPickerView::follow);
    connect(&m_model, &ActionPickerModel::scrolledToTop, m_list, &PickerList::scrollToTop);
    connect(m_list, &PickerList::leftAtTop, this, [this] { m_search->setFocus(Qt::OtherFocusReason); });
    // Once for all that changes in one go.
    connect(m_list, &PickerList::controlsChanged, this, [this] {
        if (!m_isOrderDue)
            QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
        m_isOrderDue = true;
    });
    follow();
    orderControls();
}

QSize ActionPickerView::sizeHint() const
{
    return {paneWidth, idealHeight};
}

void ActionPickerView::follow()
{
    m_header->showPaused(m_model.pausedChip());
    m_banner->showBanner(m_model.banner());
    followSearch();
    m_list->follow();
    const bool canReset = m_model.canReset();
    // A button that is disabled gives the keyboard away.
    if (!canReset && m_reset->hasFocus())
        m_search->setFocus(Qt::OtherFocusReason);
    m_reset->setEnabled(canReset);
    m_reset->setLook(resetLook(canReset));
}

void ActionPickerView::followSearch()
{
    if (m_search->text() != m_model.searchText())
        m_search->setText(m_model.searchText());
    m_search->setLook(searchLook(m_model.isSearching()));
}

void ActionPickerView::orderControls()
{
    m_isOrderDue = false;
    QWidget* last = &m_header->closeButton();
    const auto follows = [&last](QWidget* next) {
        // The toolkit gives no place to what Tab does not reach.
        if (next->focusPolicy() == Qt::NoFocus)
            return;
        setTabOrder(last, next);
        last = next;
    };
    follows(m_search);
    for (QWidget* const control : m_list->controlsInOrder())
        follows(control);
    follows(m_reset);
}

bool ActionPickerView::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest && m_isOrderDue)
        orderControls();
    return QWidget::event(event);
}

bool ActionPickerView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
        m_list->focusFirstRow();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ActionPickerView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (m_search->text().isEmpty()) {
        m_onClose();
        return;
    }
    m_search->clear();
    m_search->setFocus(Qt::OtherFocusReason);
}

void ActionPickerView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int footerTop = height() - footerHeight;
    m_header->setGeometry(0, 0, paneWidth, headerHeight);
    m_banner->setGeometry(0, bannerTop, paneWidth, StatusBannerView::bannerHeight);
    m_search->setGeometry(sideInset, searchTop, paneWidth - 2 * sideInset, searchHeight);
    m_list->setGeometry(0, listTop, paneWidth, footerTop - dividerHeight - listTop);
    const QSize reset = m_reset->sizeHint();
    m_reset->setGeometry(QRect(QPoint(sideInset - resetInset, footerTop + (footerHeight - reset.height()) / 2), reset));
}

void ActionPickerView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette::panelBackground);
    for (const int top : {headerHeight, lowerDividerTop, height() - footerHeight - dividerHeight})
        painter.fillRect(0, top, width(), dividerHeight, divider);
}

} // namespace tarvin
