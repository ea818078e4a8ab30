#include "studio/picker/view/EntryStack.h"

#include "studio/picker/view/PickerMetrics.h"

#include <algorithm>
#include <utility>

namespace tarvin {

namespace {

constexpr int spacing(RowDetail detail)
{
    return detail == RowDetail::withSubtitle ? 2 : 1;
}

} // namespace

EntryStack::EntryStack(ActionPickerModel& model, const MakeCardBody& makeCardBody, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_makeCardBody(makeCardBody)
{ }

void EntryStack::showRows(const QList<PickerRow>& rows, RowDetail detail)
{
    m_detail = detail;
    std::vector<PickerEntry*> before = std::exchange(m_entries, {});
    const auto hasSameRow = [](const PickerEntry* entry, const PickerRow& row) { return entry->pickerRow() == row; };
    const bool isSameList = std::ranges::equal(before, rows, hasSameRow);
    for (const PickerRow& row : rows) {
        PickerEntry* entry = takeEntry(before, row);
        if (entry) {
            entry->follow();
        } else {
            entry = makeEntry();
            entry->showRow(row, detail);
        }
        m_entries.push_back(entry);
    }
    for (PickerEntry* const entry : before) {
        entry->hide();
        m_spare.push_back(entry);
    }
    layOut();
    for (PickerEntry* const entry : m_entries)
        entry->show();
    setTabStop(nullptr);
    if (isSameList)
        return;
    Q_EMIT heightChanged();
    Q_EMIT controlsChanged();
}

PickerEntry* EntryStack::takeEntry(std::vector<PickerEntry*>& from, const PickerRow& row)
{
    const auto place = std::ranges::find(from, row, &PickerEntry::pickerRow);
    if (place == from.end())
        return nullptr;
    PickerEntry* const entry = *place;
    from.erase(place);
    return entry;
}

PickerEntry* EntryStack::makeEntry()
{
    if (!m_spare.empty()) {
        PickerEntry* const entry = m_spare.back();
        m_spare.pop_back();
        return entry;
    }
    auto* const entry = new PickerEntry(m_model, m_makeCardBody, this);
    ActionRow* const row = &entry->row();
    connect(entry, &PickerEntry::heightChanged, this, &EntryStack::heightChanged);
    connect(entry, &PickerEntry::controlsChanged, this, &EntryStack::controlsChanged);
    connect(row, &QAbstractButton::clicked, this, [this, entry] { Q_EMIT chosen(entry); });
    connect(row, &ActionRow::movePressed, this, [this, row](Qt::Key key) { Q_EMIT movePressed(row, key); });
    connect(row, &ActionRow::focused, this, [this, row] { setTabStop(row); });
    return entry;
}

void EntryStack::setTabStop(const ActionRow* row)
{
    const auto rowWith = [this](auto&& holds) {
        const auto place = std::ranges::find_if(m_entries, holds);
        return place == m_entries.end() ? nullptr : &(*place)->row();
    };
    if (!row)
        row = rowWith([](const PickerEntry* entry) { return entry->row().hasFocus(); });
    if (!row)
        row = rowWith([](const PickerEntry* entry) { return entry->row().isSelected(); });
    if (!row && !m_entries.empty())
        row = &m_entries.front()->row();
    bool isOther = false;
    for (PickerEntry* const entry : m_entries) {
        const Qt::FocusPolicy policy = &entry->row() == row ? Qt::TabFocus : Qt::NoFocus;
        isOther = isOther || entry->row().focusPolicy() != policy;
        entry->row().setFocusPolicy(policy);
    }
    if (isOther)
        Q_EMIT controlsChanged();
}

int EntryStack::currentHeight() const
{
    int height = 0;
    for (const PickerEntry* const entry : m_entries)
        height += entry->currentHeight() + spacing(m_detail);
    return std::max(0, height - spacing(m_detail));
}

void EntryStack::layOut()
{
    int y = 0;
    for (PickerEntry* const entry : m_entries) {
        entry->move(0, y);
        y += entry->currentHeight() + spacing(m_detail);
    }
    resize(pickermetrics::rowWidth, currentHeight());
}

} // namespace tarvin
