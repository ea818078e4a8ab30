#include "studio/picker/view/NoResultsView.h"

#include "studio/picker/PickerTexts.h"
#include "studio/picker/view/PickerMetrics.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/Symbols.h"
#include "ui/TextBlock.h"
#include "ui/TextLabel.h"

#include <QPainter>
#include <QVBoxLayout>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr int sideInset = 20;
constexpr int topInset = 28;
constexpr int symbolSize = 30;
constexpr int symbolBox = 36;
constexpr int spacing = 10;
constexpr int lineSpacing = 3;
constexpr TextStyle titleText{.size = 13, .weight = TextWeight::semibold, .face = TextFace::rounded};
constexpr TextStyle lineText{.size = 11, .weight = TextWeight::regular, .face = TextFace::rounded};
constexpr ButtonLook clearLook{.height = 24,
    .radius = 12,
    .inset = 14,
    .symbolSize = 11,
    .spacing = 0,
    .text = {.size = 11, .weight = TextWeight::semibold, .face = TextFace::rounded},
    .symbolColour = mintTeal,
    .textColour = mintTeal,
    .fill = mintTeal.at(0.12),
    .hoveredFill = mintTeal.at(0.2),
    .stroke = mintTeal.at(0)};

} // namespace

NoResultsView::NoResultsView(QWidget* parent)
    : QWidget(parent)
    , m_line(new TextBlock({}, lineText, white.at(0.45), this))
    , m_clear(new OutlinedButton(clearLook, this))
{
    auto* const heading = new TextLabel(noResultsTitle.toString(), titleText, white.at(0.85), this);
    auto* const examples = new TextLabel(noResultsExamples.toString(), lineText, white.at(0.45), this);
    m_line->setAlignment(Qt::AlignHCenter);
    m_clear->setText(clearSearchText.toString());
    connect(m_clear, &QAbstractButton::clicked, this, &NoResultsView::clearWanted);
    auto* const stack = new QVBoxLayout(this);
    stack->setContentsMargins(sideInset, topInset + symbolBox + spacing, sideInset, spacing);
    stack->setSpacing(0);
    stack->addWidget(heading, 0, Qt::AlignHCenter);
    stack->addSpacing(spacing);
    stack->addWidget(m_line);
    stack->addSpacing(lineSpacing);
    stack->addWidget(examples, 0, Qt::AlignHCenter);
    stack->addSpacing(spacing);
    stack->addWidget(m_clear, 0, Qt::AlignHCenter);
    showSearch({});
}

void NoResultsView::showSearch(const QString& typed)
{
    m_line->setText(noResultsLine(typed));
    m_line->updateGeometry();
    layout()->activate();
    resize(pickermetrics::paneWidth, layout()->totalHeightForWidth(pickermetrics::paneWidth));
}

void NoResultsView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawSymbol(painter, Symbol(u"magnifyingglass"), {width() / 2.0, topInset + symbolBox / 2.0}, symbolSize,
        white.at(0.25).toQColor());
}

} // namespace tarvin
