#include "studio/picker/view/PickerList.h"

#include "studio/picker/ActionPickerModel.h"
#include "studio/picker/view/NoResultsView.h"
#include "studio/picker/view/PickerMetrics.h"
#include "studio/picker/view/PickerSectionHeader.h"
#include "studio/picker/view/PickerSectionView.h"
#include "studio/picker/view/SearchResultsView.h"
#include "studio/picker/view/UsageFilterSwitch.h"
#include "ui/ConfirmButton.h"
#include "ui/OutlinedButton.h"
#include "ui/OverlayScrollBar.h"

#include <QScrollBar>

#include <algorithm>

namespace tarvin {

namespace {

constexpr int verticalInset = 12; // above the first and below the last section
constexpr int sectionSpacing = 18;
constexpr QMargins scrollBarMargins{0, 2, -1, 2};
constexpr int focusMargin = 24; // that stays visible around the row with the keyboard

/// A widget and what is in it, as far as Tab reaches them, in the order in which they were put there.
void addControls(std::vector<QWidget*>& to, QWidget* widget)
{
    QList<QWidget*> all = widget->findChildren<QWidget*>();
    all.prepend(widget);
    std::ranges::copy_if(
        all, std::back_inserter(to), [](const QWidget* each) { return (each->focusPolicy() & Qt::TabFocus) != 0; });
}

void addControls(std::vector<QWidget*>& to, const EntryStack& stack)
{
    for (const PickerEntry* const entry : stack.entries()) {
        to.push_back(&entry->row());
        if (entry->body())
            addControls(to, entry->body());
        if (entry->testButton())
            to.push_back(entry->testButton());
    }
}

} // namespace

PickerList::PickerList(ActionPickerModel& model, MakeCardBody makeCardBody, QWidget* parent)
    : QScrollArea(parent)
    , m_model(model)
    , m_makeCardBody(std::move(makeCardBody))
    , m_content(new QWidget)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    setWidget(m_content);
    m_content->setAutoFillBackground(false); // the area turns it on
    new OverlayScrollBar(*this, scrollBarMargins); // the area owns it
    setAccessibleName(tr("Actions"));
    for (const PickerSection section : allPickerSections) {
        auto* const view = new PickerSectionView(section, m_model, m_makeCardBody, m_content);
        m_sections.push_back(view);
        connect(view, &PickerSectionView::heightChanged, this, &PickerList::layOut);
        connect(&view->header(), &PickerSectionHeader::movePressed, this,
            [this, view](Qt::Key key) { moveFocus(&view->header(), key); });
        connect(&view->header(), &QAbstractButton::clicked, this, [this] { m_anchor = nullptr; });
        addStack(view->stack());
    }
    m_results = new SearchResultsView(m_model, m_makeCardBody, m_content);
    connect(m_results, &SearchResultsView::heightChanged, this, &PickerList::layOut);
    addStack(m_results->stack());
}

PickerList::~PickerList() = default;

void PickerList::addStack(EntryStack& stack)
{
    connect(&stack, &EntryStack::controlsChanged, this, &PickerList::controlsChanged);
    connect(&stack, &EntryStack::movePressed, this, [this](ActionRow* from, Qt::Key key) { moveFocus(from, key); });
    connect(&stack, &EntryStack::chosen, this, [this](PickerEntry* entry) { m_anchor = entry; });
}

void PickerList::follow()
{
    const bool isSearching = m_model.isSearching();
    // What is out of sight catches up when it comes back.
    if (isSearching) {
        m_results->follow();
    } else {
        for (PickerSectionView* const section : m_sections)
            section->follow();
    }
    m_results->setVisible(isSearching);
    for (PickerSectionView* const section : m_sections)
        section->setVisible(!isSearching);
    layOut();
}

void PickerList::layOut()
{
    const auto anchorTop = [this] { return m_anchor->mapTo(m_content, QPoint()).y(); };
    const bool hasAnchor = m_anchor && m_anchor->isVisible();
    const int before = hasAnchor ? anchorTop() : 0;
    int y = verticalInset;
    if (m_model.isSearching()) {
        m_results->move(0, 0);
        y = m_results->height();
    } else {
        for (PickerSectionView* const section : m_sections) {
            section->move(0, y - PickerSectionHeader::reach);
            y += section->currentHeight() + sectionSpacing;
        }
        y += verticalInset - sectionSpacing;
    }
    m_content->resize(pickermetrics::paneWidth, y);
    if (hasAnchor)
        verticalScrollBar()->setValue(verticalScrollBar()->value() + anchorTop() - before);
}

void PickerList::scrollToTop()
{
    m_anchor = nullptr;
    verticalScrollBar()->setValue(0);
}

std::vector<QWidget*> PickerList::stops() const
{
    std::vector<QWidget*> found;
    const auto addRows = [&found](const EntryStack& stack) {
        for (const PickerEntry* const entry : stack.entries())
            found.push_back(&entry->row());
    };
    if (m_model.isSearching()) {
        addRows(m_results->stack());
        return found;
    }
    for (const PickerSectionView* const section : m_sections) {
        found.push_back(&section->header());
        if (m_model.isExpanded(section->section()))
            addRows(section->stack());
    }
    return found;
}

std::vector<QWidget*> PickerList::controlsInOrder() const
{
    std::vector<QWidget*> found;
    for (const PickerSectionView* const section : m_sections) {
        found.push_back(&section->header());
        if (section->filterSwitch())
            addControls(found, section->filterSwitch());
        addControls(found, section->stack());
    }
    addControls(found, m_results->stack());
    found.push_back(&m_results->noResults().clearButton());
    return found;
}

void PickerList::focusFirstRow()
{
    const std::vector<QWidget*> all = stops();
    const auto row = std::ranges::find_if(all, [](QWidget* stop) { return qobject_cast<ActionRow*>(stop) != nullptr; });
    if (row == all.end())
        return;
    (*row)->setFocus(Qt::OtherFocusReason);
    ensureWidgetVisible(*row, 0, focusMargin);
}

void PickerList::moveFocus(QWidget* from, Qt::Key key)
{
    const std::vector<QWidget*> all = stops();
    const auto place = std::ranges::find(all, from);
    if (place == all.end())
        return;
    QWidget* to = nullptr;
    switch (key) {
    case Qt::Key_Up:
        if (place == all.begin()) {
            Q_EMIT leftAtTop();
            return;
        }
        to = *std::prev(place);
        break;
    case Qt::Key_Down:
        to = std::next(place) == all.end() ? from : *std::next(place);
        break;
    case Qt::Key_Home:
        to = all.front();
        break;
    case Qt::Key_End:
        to = all.back();
        break;
    default:
        return;
    }
    to->setFocus(Qt::OtherFocusReason);
    ensureWidgetVisible(to, 0, focusMargin);
}

} // namespace tarvin
