#include "SidebarDelegate.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>

namespace vexel {

namespace {

constexpr int rowHeight = 34;
constexpr double inset = 8;
constexpr double radius = 7;
constexpr int textIndent = 14;
constexpr int iconSide = 16;
constexpr int iconGap = 10;

// A symbol in one colour: its shape, whatever colours its theme drew it in,
// so that it reads on the sidebar and on the highlight in either appearance.
QPixmap tinted(const QIcon& icon, const QColor& colour, qreal ratio)
{
    QPixmap shape = icon.pixmap(QSize(iconSide, iconSide), ratio);
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(shape.rect(), colour);
    return shape;
}

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
    const QColor ink = palette.color(selected ? QPalette::HighlightedText : QPalette::WindowText);
    QRectF text = pill.adjusted(textIndent, 0, -textIndent, 0);
    if (const auto icon = index.data(Qt::DecorationRole).value<QIcon>(); !icon.isNull()) {
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        const QPointF corner(text.left(), pill.center().y() - iconSide / 2.0);
        painter->drawPixmap(QRectF(corner, QSizeF(iconSide, iconSide)), tinted(icon, ink, ratio), QRectF());
        text.setLeft(text.left() + iconSide + iconGap);
    }
    painter->setFont(Look::font(10.5, selected ? QFont::DemiBold : QFont::Normal));
    painter->setPen(ink);
    painter->drawText(text, Qt::AlignVCenter | Qt::AlignLeft, index.data(Qt::DisplayRole).toString());
    painter->restore();
}

QSize SidebarDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {option.rect.width(), rowHeight};
}

} // namespace vexel
