#include "look/PaintedView.h"

#include <QPainter>

namespace vexel {

PaintedView::PaintedView(QSize preferred, QWidget* parent)
    : QWidget(parent)
    , m_preferred(preferred)
{
    setMinimumHeight(preferred.height());
}

void PaintedView::setDrawing(Drawing drawing)
{
    m_drawing = std::move(drawing);
    update();
}

void PaintedView::paintEvent(QPaintEvent*)
{
    if (!m_drawing)
        return;
    QPainter painter(this);
    m_drawing(painter, QRectF(rect()), palette());
}

} // namespace vexel
