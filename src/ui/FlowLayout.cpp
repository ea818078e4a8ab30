#include "ui/FlowLayout.h"

#include <algorithm>

namespace tarvin {

FlowLayout::FlowLayout(int spacing, QWidget* parent)
    : QLayout(parent)
    , m_spacing(spacing)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout()
{
    // One by one, because a layout in here takes itself out of the list when it goes.
    while (const std::unique_ptr<QLayoutItem> item{takeAt(0)}) { }
}

void FlowLayout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
    invalidate();
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    const auto place = m_items.begin() + index;
    QLayoutItem* const item = place->release();
    m_items.erase(place);
    return item;
}

int FlowLayout::heightForWidth(int width) const
{
    return layOut({0, 0, width, 0}, Placing::tryOnly);
}

QSize FlowLayout::sizeHint() const
{
    int width = 0;
    int height = 0;
    for (const auto& item : m_items) {
        if (item->isEmpty())
            continue;
        width += item->sizeHint().width() + (width > 0 ? m_spacing : 0);
        height = std::max(height, item->sizeHint().height());
    }
    return {width, height};
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const auto& item : m_items) {
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    }
    return size;
}

void FlowLayout::setGeometry(const QRect& box)
{
    QLayout::setGeometry(box);
    layOut(box, Placing::place);
}

int FlowLayout::layOut(const QRect& box, Placing placing) const
{
    int x = box.left();
    int y = box.top();
    int lineHeight = 0;
    for (const auto& item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (lineHeight > 0 && x + size.width() > box.left() + box.width()) {
            x = box.left();
            y += lineHeight + m_spacing;
            lineHeight = 0;
        }
        if (placing == Placing::place)
            item->setGeometry({QPoint(x, y), size});
        x += size.width() + m_spacing;
        lineHeight = std::max(lineHeight, size.height());
    }
    return y + lineHeight - box.top();
}

} // namespace tarvin
