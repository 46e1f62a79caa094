#include "look/DialView.h"

#include <QPainter>

namespace vexel {

DialView::DialView(Appearance appearance, QWidget* parent)
    : QWidget(parent)
    , m_appearance(appearance)
{
    setMinimumSize(96, 96);
}

void DialView::setDial(Dial dial)
{
    m_dial = std::move(dial);
    update();
}

void DialView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_dial.paint(painter, QRectF(rect()).adjusted(4, 4, -4, -4), m_appearance);
}

} // namespace vexel
