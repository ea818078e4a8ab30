#include "tools/clipboard/view/ClipList.h"

#include "tools/clipboard/view/ClipRow.h"

#include <QScrollBar>

namespace tarvin {

namespace {

constexpr int margin = 8;
constexpr int spacing = 4;

} // namespace

ClipList::ClipList(QWidget* parent)
    : QScrollArea(parent)
    , m_stack(new QWidget)
    , m_bar(new QScrollBar(Qt::Vertical, this))
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    m_stack->setAutoFillBackground(false);
    setWidget(m_stack);
    m_stack->setAutoFillBackground(false);

    // The area's own bar would take its room from the rows.
    const QScrollBar* const hidden = verticalScrollBar();
    connect(hidden, &QScrollBar::rangeChanged, m_bar, [this, hidden](int least, int most) {
        m_bar->setRange(least, most);
        m_bar->setPageStep(hidden->pageStep());
        m_bar->setVisible(most > least);
    });
    connect(hidden, &QScrollBar::valueChanged, m_bar, &QScrollBar::setValue);
    connect(m_bar, &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
    m_bar->hide();
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

void ClipList::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    m_bar->setGeometry(width() - m_bar->sizeHint().width() + 1, 4, m_bar->sizeHint().width(), height() - 8);
    m_bar->raise();
}

} // namespace tarvin
