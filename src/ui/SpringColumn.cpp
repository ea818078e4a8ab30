#include "ui/SpringColumn.h"

#include <QRegion>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace tarvin {

SpringColumn::SpringColumn(int spacing, const Motion& motion, QWidget* parent)
    : QLayout(parent)
    , m_spacing(spacing)
    , m_motion(motion)
    , m_progress(1, [this] { step(); })
{
    setContentsMargins(0, 0, 0, 0);
}

SpringColumn::~SpringColumn()
{
    // One by one, because a layout in here takes itself out of the list when it goes.
    while (const std::unique_ptr<QLayoutItem> item{takeAt(0)}) { }
}

SpringColumn::Change::Change(SpringColumn& column)
    : m_column(column)
{
    m_column.beginChange();
}

SpringColumn::Change::~Change()
{
    m_column.endChange();
}

void SpringColumn::insertWidget(int index, QWidget* widget)
{
    addChildWidget(widget);
    Item item{.item = std::make_unique<QWidgetItem>(widget), .shown = {}, .before = {}, .atChange = {}};
    m_items.insert(m_items.begin() + index, std::move(item));
    invalidate();
}

void SpringColumn::addLayout(QLayout* layout)
{
    addChildLayout(layout);
    addItem(layout);
}

void SpringColumn::addItem(QLayoutItem* item)
{
    m_items.push_back({.item = std::unique_ptr<QLayoutItem>(item), .shown = {}, .before = {}, .atChange = {}});
    invalidate();
}

QLayoutItem* SpringColumn::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].item.get() : nullptr;
}

QLayoutItem* SpringColumn::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    const auto place = m_items.begin() + index;
    QLayoutItem* const item = place->item.release();
    m_items.erase(place);
    return item;
}

std::vector<std::optional<SpringColumn::Place>> SpringColumn::places(int width) const
{
    const QMargins margins = contentsMargins();
    const int room = width - margins.left() - margins.right();
    std::vector<std::optional<Place>> all;
    int top = margins.top();
    for (const Item& each : m_items) {
        QLayoutItem& item = *each.item;
        if (item.isEmpty()) {
            all.emplace_back();
            continue;
        }
        const int height = item.hasHeightForWidth() ? item.heightForWidth(room) : item.sizeHint().height();
        all.emplace_back(Place{.top = top, .height = height});
        top += height + m_spacing;
    }
    return all;
}

int SpringColumn::restingHeight(int width) const
{
    const QMargins margins = contentsMargins();
    int bottom = margins.top();
    for (const auto& place : places(width)) {
        if (place)
            bottom = place->top + place->height;
    }
    return bottom + margins.bottom();
}

int SpringColumn::heightForWidth(int width) const
{
    const int height = restingHeight(width);
    const double left = 1 - m_progress.value();
    return static_cast<int>(std::lround(height + (m_heightBefore - height) * left));
}

QSize SpringColumn::sizeHint() const
{
    int width = 0;
    for (const Item& each : m_items) {
        if (!each.item->isEmpty())
            width = std::max(width, each.item->sizeHint().width());
    }
    const QMargins margins = contentsMargins();
    width += margins.left() + margins.right();
    return {width, heightForWidth(width)};
}

QSize SpringColumn::minimumSize() const
{
    int width = 0;
    for (const Item& each : m_items) {
        if (!each.item->isEmpty())
            width = std::max(width, each.item->minimumSize().width());
    }
    const QMargins margins = contentsMargins();
    return {width + margins.left() + margins.right(), 0};
}

void SpringColumn::setGeometry(const QRect& box)
{
    QLayout::setGeometry(box);
    m_box = box;
    place(box);
}

void SpringColumn::beginChange()
{
    for (Item& each : m_items)
        each.atChange = each.shown;
    m_placesAtChange = places(m_box.width());
    m_heightAtChange = heightForWidth(m_box.width());
}

void SpringColumn::endChange()
{
    invalidate();
    if (!parentWidget()->isVisible() || m_box.width() == 0) {
        m_progress.jumpTo(1);
        return;
    }
    if (places(m_box.width()) == m_placesAtChange)
        return;
    for (Item& each : m_items)
        each.before = each.atChange;
    m_heightBefore = m_heightAtChange;
    m_progress.jumpTo(0);
    m_progress.animateTo(1, m_motion);
    step();
}

void SpringColumn::step()
{
    invalidate();
    parentWidget()->updateGeometry();
    place(m_box);
}

void SpringColumn::place(const QRect& box)
{
    const std::vector<std::optional<Place>> targets = places(box.width());
    const double progress = m_progress.value();
    const QMargins margins = contentsMargins();
    for (std::size_t index = 0; index < m_items.size(); ++index) {
        Item& each = m_items[index];
        each.shown = targets[index];
        if (!each.shown)
            continue;
        const int height = each.shown->height;
        if (progress != 1 && each.before)
            each.shown->top =
                static_cast<int>(std::lround(each.before->top + (each.shown->top - each.before->top) * progress));
        const QRect room(box.left() + margins.left(), box.top() + each.shown->top,
            box.width() - margins.left() - margins.right(), height);
        each.item->setGeometry(room);
        QWidget* const widget = each.item->widget();
        if (!widget)
            continue;
        if (progress != 1 && !each.before)
            widget->setMask(
                QRegion(0, 0, room.width(), std::max(1, static_cast<int>(height * std::min(progress, 1.0)))));
        else
            widget->clearMask();
    }
}

} // namespace tarvin
