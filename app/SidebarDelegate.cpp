#include "SidebarDelegate.h"

#include <QPainter>
#include <QPainterPath>

namespace vexel {

namespace {

constexpr int rowHeight = 34;
constexpr double inset = 8;
constexpr double radius = 7;
constexpr int textIndent = 14;

} // namespace

SidebarDelegate::SidebarDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

void SidebarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QPalette& palette = option.palette;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF pill = QRectF(option.rect).adjusted(inset, 2, -inset, -2);
    if (selected) {
        QPainterPath path;
        path.addRoundedRect(pill, radius, radius);
        painter->fillPath(path, palette.color(QPalette::Highlight));
    }
    painter->setFont(Look::font(10.5, selected ? QFont::DemiBold : QFont::Normal));
    painter->setPen(palette.color(selected ? QPalette::HighlightedText : QPalette::WindowText));
    const QRectF text = pill.adjusted(textIndent, 0, -textIndent, 0);
    painter->drawText(text, Qt::AlignVCenter | Qt::AlignLeft, index.data(Qt::DisplayRole).toString());
    painter->restore();
}

QSize SidebarDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {option.rect.width(), rowHeight};
}

} // namespace vexel
