#include "studio/picker/view/SearchResultsView.h"

#include "studio/picker/ActionPickerModel.h"
#include "studio/picker/view/Chip.h"
#include "studio/picker/view/NoResultsView.h"
#include "studio/picker/view/PickerHeading.h"
#include "studio/picker/view/PickerMetrics.h"
#include "ui/Palette.h"

namespace tarvin {

namespace {

using namespace pickermetrics;
using palette::mintTeal;

constexpr int topInset = 16;
constexpr int headingGap = 10;

Pill countPill()
{
    return {.text = {},
        .style = {.size = 10, .weight = TextWeight::bold, .face = TextFace::rounded},
        .textColour = mintTeal,
        .fill = mintTeal.at(0.12),
        .insetX = 7,
        .insetY = 2,
        .radius = 6};
}

} // namespace

SearchResultsView::SearchResultsView(ActionPickerModel& model, const MakeCardBody& makeCardBody, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_heading(new PickerHeading(searchResultsHeading.toString(), this))
    , m_count(new Chip(countPill(), this))
    , m_stack(new EntryStack(model, makeCardBody, this))
    , m_noResults(new NoResultsView(this))
{
    m_stack->setAccessibleName(searchResultsHeading.toString());
    connect(m_stack, &EntryStack::heightChanged, this, [this] {
        layOut();
        Q_EMIT heightChanged();
    });
    connect(m_noResults, &NoResultsView::clearWanted, this, [this] { m_model.setSearchText({}); });
}

void SearchResultsView::follow()
{
    const QList<PickerRow> found = m_model.searchResults();
    m_stack->showRows(found, RowDetail::withSubtitle);
    m_count->setText(resultCountText(found.size()));
    m_noResults->showSearch(m_model.searchText());
    m_noResults->setVisible(found.isEmpty());
    for (QWidget* const part :
        {static_cast<QWidget*>(m_heading), static_cast<QWidget*>(m_count), static_cast<QWidget*>(m_stack)})
        part->setVisible(!found.isEmpty());
    layOut();
}

void SearchResultsView::layOut()
{
    if (m_stack->entries().empty()) {
        m_noResults->move(0, 0);
        resize(m_noResults->size());
        return;
    }
    const QSize count = m_count->sizeHint();
    m_count->setGeometry(QRect(QPoint(paneWidth - sideInset - count.width(), topInset), count));
    const QSize heading = m_heading->sizeHint();
    m_heading->setGeometry(QRect(QPoint(listInset, topInset + (count.height() - heading.height() + 1) / 2), heading));
    m_stack->layOut();
    const int top = topInset + count.height() + headingGap;
    m_stack->move(listInset, top);
    resize(paneWidth, top + m_stack->height() + topInset);
}

} // namespace tarvin
