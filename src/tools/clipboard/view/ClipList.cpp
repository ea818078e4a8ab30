#include "tools/clipboard/view/ClipList.h"

#include "tools/clipboard/view/ClipRow.h"
#include "ui/OverlayScrollBar.h"

namespace tarvin {

namespace {

constexpr int margin = 8;
constexpr int spacing = 4;

} // namespace

ClipList::ClipList(QWidget* parent)
    : QScrollArea(parent)
    , m_stack(new QWidget)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    m_stack->setAutoFillBackground(false);
    setWidget(m_stack);
    m_stack->setAutoFillBackground(false);
    new OverlayScrollBar(*this, {0, 4, -1, 4});
}

void ClipList::show(const QList<ClipboardItem>& items)
{
    m_items = items;
    QHash<QUuid, ClipText> texts;
    const QLocale locale;
    int top = margin;
    for (qsizetype index = 0; index < items.size(); ++index) {
        const ClipboardItem& item = items[index];
        const auto known = m_texts.constFind(item.id);
        const ClipText text = known != m_texts.cend() ? *known : ClipText::of(item, locale);
        texts.insert(item.id, text);
        ClipRow& row = rowAt(index);
        row.show(item, text, index);
        row.move(margin, top);
        row.show();
        top += row.height() + spacing;
    }
    for (auto index = static_cast<std::size_t>(items.size()); index < m_rows.size(); ++index)
        m_rows[index]->hide();
    m_texts.insert(texts);
    m_stack->resize(ClipRow::rowWidth + 2 * margin, top - spacing + margin);
}

std::vector<ClipRow*> ClipList::rows() const
{
    return {m_rows.begin(), m_rows.begin() + m_items.size()};
}

ClipRow& ClipList::rowAt(qsizetype index)
{
    const auto place = static_cast<std::size_t>(index);
    if (place == m_rows.size()) {
        auto* const row = new ClipRow(m_stack);
        connect(row, &QAbstractButton::clicked, this, [this, index] { Q_EMIT pasteWanted(m_items[index]); });
        connect(row, &ClipRow::pinClicked, this, [this, index] { Q_EMIT pinWanted(m_items[index]); });
        connect(row, &ClipRow::deleteClicked, this, [this, index] { Q_EMIT deleteWanted(m_items[index]); });
        m_rows.push_back(row);
    }
    return *m_rows[place];
}

} // namespace tarvin
