#include "studio/applications/view/NoApplicationsView.h"

#include "studio/applications/AddAppSheetModel.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/TextLabel.h"
#include "ui/TextLine.h"

#include <QVBoxLayout>

namespace tarvin {

namespace {

using palette::white;

constexpr double symbolSize = 28;
constexpr TextStyle titleStyle{.size = 13, .weight = TextWeight::semibold, .face = TextFace::rounded};
constexpr TextStyle detailStyle{.size = 11, .weight = TextWeight::regular, .face = TextFace::rounded};
constexpr int side = 24; // left and right of the texts
constexpr ButtonLook clearLook{.height = 26,
    .radius = 6,
    .inset = 12,
    .symbolSize = 0,
    .spacing = 0,
    .text = {.size = 11, .weight = TextWeight::semibold, .face = TextFace::rounded},
    .symbolColour = white.at(0),
    .textColour = white,
    .fill = white.at(0.12),
    .hoveredFill = white.at(0.18),
    .stroke = white.at(0)};

} // namespace

NoApplicationsView::NoApplicationsView(QWidget* parent)
    : QWidget(parent)
    , m_detail(new TextLabel({}, detailStyle, white.at(0.45)))
    , m_clear(new OutlinedButton(clearLook))
{
    auto* const symbol = new TextLabel({}, titleStyle, white);
    symbol->setSymbol(Symbol(u"magnifyingglass.light"), symbolSize, white.at(0.25));
    auto* const title = new TextLabel(AddAppSheetModel::emptyTitle.toString(), titleStyle, white.at(0.85));
    m_clear->setText(AddAppSheetModel::clearSearchText.toString());
    connect(m_clear, &QAbstractButton::clicked, this, &NoApplicationsView::clearRequested);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(side, 0, side, 0);
    column->setSpacing(0);
    column->addStretch();
    column->addWidget(symbol, 0, Qt::AlignHCenter);
    column->addSpacing(10);
    column->addWidget(title, 0, Qt::AlignHCenter);
    column->addSpacing(4);
    column->addWidget(m_detail, 0, Qt::AlignHCenter);
    column->addSpacing(12);
    column->addWidget(m_clear, 0, Qt::AlignHCenter);
    column->addStretch();
    setDetail({});
}

void NoApplicationsView::setDetail(const QString& detail)
{
    m_wholeDetail = detail;
    m_detail->setToolTip(detail);
    elideDetail();
    m_detail->setVisible(!detail.isEmpty());
    m_clear->setVisible(!detail.isEmpty());
}

QString NoApplicationsView::shownDetail() const
{
    return m_detail->text();
}

void NoApplicationsView::elideDetail()
{
    m_detail->setText(elidedText(m_wholeDetail, detailStyle, width() - 2 * side));
    m_detail->updateGeometry();
}

void NoApplicationsView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    elideDetail();
}

} // namespace tarvin
