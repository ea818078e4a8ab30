#include "studio/picker/view/PickerEntry.h"

#include "studio/picker/ActionPickerModel.h"
#include "studio/picker/view/PickerMetrics.h"
#include "studio/picker/view/RowBadges.h"
#include "ui/ConfirmButton.h"
#include "ui/Palette.h"
#include "ui/Plates.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvin {

namespace {

using namespace pickermetrics;

constexpr double radius = 8;
constexpr int testGap = 6;
constexpr int testHeight = 24;
constexpr ButtonLook testLook{.height = testHeight,
    .radius = 6,
    .inset = 0,
    .symbolSize = 10,
    .spacing = 6,
    .text = {.size = 10, .weight = TextWeight::bold, .face = TextFace::rounded},
    .symbolColour = palette::black,
    .textColour = palette::black,
    .fill = {0.0, 0.82, 0.62},
    .hoveredFill = {0.1, 0.87, 0.68},
    .stroke = palette::white.at(0)};
constexpr ConfirmButton::Motions testMotions{
    .confirming = Motion::spring(0.25, 0.7), .returning = Motion::easeInOut(std::chrono::milliseconds(350))};
constexpr int bottomPadding = 8;

int heightOf(const QWidget& body)
{
    return body.hasHeightForWidth() ? body.heightForWidth(bodyWidth) : body.sizeHint().height();
}

} // namespace

PickerEntry::PickerEntry(ActionPickerModel& model, const MakeCardBody& makeCardBody, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_makeCardBody(makeCardBody)
    , m_row(new ActionRow(this))
    , m_opened(new QWidget(this))
    , m_selection(0, [this] { step(); })
{
    m_opened->hide();
    m_opened->installEventFilter(this);
    connect(m_row, &QAbstractButton::clicked, this, [this] { m_model.choose(m_pickerRow); });
}

void PickerEntry::showRow(const PickerRow& row, RowDetail detail)
{
    if (m_pickerRow != row)
        close();
    m_pickerRow = row;
    m_detail = detail;
    const bool isSelected = m_model.isSelected(m_pickerRow);
    if (isSelected)
        open();
    else
        close();
    m_selection.jumpTo(isSelected ? 1 : 0);
    follow();
    m_row->showSelection(isSelected, m_selection.value());
    layOut();
}

void PickerEntry::follow()
{
    const std::optional<Pill> badge = badgeOf(m_pickerRow, m_model.record().config());
    const QString shown = m_row->badge() ? m_row->badge()->text : QString();
    if (m_row->action() != m_pickerRow.action || m_row->detail() != m_detail
        || shown != (badge ? badge->text : QString()))
        m_row->showAction(m_pickerRow.action, badge, m_detail);
    select(m_model.isSelected(m_pickerRow));
    followTest();
}

void PickerEntry::followTest()
{
    using Says = ConfirmButton::Says;
    if (m_testButton)
        m_testButton->showText(m_model.testButtonText(), m_model.hasTestMessage() ? Says::confirmation : Says::offer);
}

void PickerEntry::select(bool isSelected)
{
    if (m_selection.target() == (isSelected ? 1 : 0))
        return;
    if (isSelected)
        open();
    // What is on its way out takes no more input.
    m_opened->setEnabled(isSelected);
    if (isVisible())
        m_selection.animateTo(isSelected ? 1 : 0, choiceMotion);
    else
        m_selection.jumpTo(isSelected ? 1 : 0);
    m_row->showSelection(isSelected, m_selection.value());
}

void PickerEntry::step()
{
    m_row->showSelection(m_selection.target() == 1, m_selection.value());
    if (m_selection.value() == 0 && m_selection.target() == 0)
        close();
    layOut();
    update();
    Q_EMIT heightChanged();
}

void PickerEntry::open()
{
    m_opened->setEnabled(true);
    if (m_testButton)
        return;
    if (m_pickerRow.card && m_makeCardBody)
        m_body = m_makeCardBody(*m_pickerRow.card, m_opened);
    m_testButton = new ConfirmButton(testLook, testMotions, m_opened);
    followTest();
    connect(m_testButton, &QAbstractButton::clicked, this, [this] { m_model.test(); });
    for (QWidget* const part : {m_body, static_cast<QWidget*>(m_testButton)}) {
        if (part)
            part->show();
    }
    m_opened->show();
    Q_EMIT controlsChanged();
}

void PickerEntry::close()
{
    if (!m_testButton)
        return;
    m_opened->hide();
    // Later, because one of them may have led here.
    if (m_body)
        m_body->deleteLater();
    m_testButton->deleteLater();
    m_body = nullptr;
    m_testButton = nullptr;
    Q_EMIT controlsChanged();
}

int PickerEntry::openHeight() const
{
    return (m_body ? heightOf(*m_body) : 0) + testGap + testHeight + bottomPadding;
}

int PickerEntry::currentHeight() const
{
    const int closed = m_row->sizeHint().height();
    if (!m_testButton)
        return closed;
    return closed + static_cast<int>(std::lround(std::clamp(m_selection.value(), 0.0, 1.0) * openHeight()));
}

void PickerEntry::layOut()
{
    const int top = m_row->sizeHint().height();
    m_row->setGeometry(0, 0, rowWidth, top);
    if (m_testButton) {
        int y = 0;
        if (m_body) {
            y = heightOf(*m_body);
            m_body->setGeometry(bodyInset, 0, bodyWidth, y);
        }
        m_testButton->setGeometry(bodyInset, y + testGap, bodyWidth, testHeight);
        m_opened->setGeometry(0, top, rowWidth, currentHeight() - top);
    }
    resize(rowWidth, currentHeight());
}

bool PickerEntry::eventFilter(QObject* watched, QEvent* event)
{
    // The body has another height, or had one while it was out of sight.
    if (watched == m_opened && (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show)) {
        layOut();
        Q_EMIT heightChanged();
        Q_EMIT controlsChanged();
    }
    return QWidget::eventFilter(watched, event);
}

void PickerEntry::paintEvent(QPaintEvent* /*event*/)
{
    const double share = std::clamp(m_selection.value(), 0.0, 1.0);
    if (share == 0)
        return;
    QPainter painter(this);
    fillPlate(painter, rect(), radius, palette::mintTeal.at(0.06 * share));
}

} // namespace tarvin
