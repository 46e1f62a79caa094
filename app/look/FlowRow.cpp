#include "look/FlowRow.h"

#include <QWidget>

#include <algorithm>

namespace vexel {

FlowRow::FlowRow(int spacing)
    : m_gap(spacing)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowRow::~FlowRow()
{
    while (QLayoutItem* item = takeAt(0))
        delete item;
}

void FlowRow::addItem(QLayoutItem* item)
{
    m_items.append(item);
}

QLayoutItem* FlowRow::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int FlowRow::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), false);
}

QSize FlowRow::sizeHint() const
{
    // All on one line when there is room.
    int width = 0;
    int height = 0;
    for (const auto* item : m_items) {
        if (item->isEmpty())
            continue;
        width += (width > 0 ? m_gap : 0) + item->sizeHint().width();
        height = std::max(height, item->sizeHint().height());
    }
    return {width, height};
}

QSize FlowRow::minimumSize() const
{
    // As narrow as the widest single item.
    QSize size;
    for (const auto* item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowRow::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

int FlowRow::arrange(const QRect& rect, bool place) const
{
    int x = rect.x();
    int y = rect.y();
    int lineHeight = 0;
    for (auto* item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (x > rect.x() && x + size.width() > rect.right() + 1) {
            x = rect.x();
            y += lineHeight + m_gap;
            lineHeight = 0;
        }
        if (place)
            item->setGeometry(QRect(QPoint(x, y), size));
        x += size.width() + m_gap;
        lineHeight = std::max(lineHeight, size.height());
    }
    return y + lineHeight - rect.y();
}

} // namespace vexel
