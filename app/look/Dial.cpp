#include "look/Dial.h"

#include "look/StrainColours.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vexel {

namespace {

constexpr double startAngle = 225; // the lower left, where an empty dial begins
constexpr double sweep = 270;

double clamped(double fraction)
{
    return std::isfinite(fraction) ? std::clamp(fraction, 0.0, 1.0) : 0.0;
}

// The point at `angle` degrees on a circle, in Qt's screen coordinates (y down).
QPointF onCircle(const QPointF& centre, double radius, double angle)
{
    const double radians = angle * std::numbers::pi / 180;
    return {centre.x() + radius * std::cos(radians), centre.y() - radius * std::sin(radians)};
}

} // namespace

double Dial::angleOf(double fraction)
{
    return startAngle - sweep * clamped(fraction);
}

void Dial::paint(QPainter& painter, const QRectF& area, const QPalette& palette) const
{
    const double side = std::min(area.width(), area.height());
    const QRectF square(area.center().x() - side / 2, area.center().y() - side / 2, side, side);
    const double thickness = std::max(3.0, side * 0.08);
    const QRectF ring = square.adjusted(thickness / 2, thickness / 2, -thickness / 2, -thickness / 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);

    QPen pen(Look::track(palette), thickness, Qt::SolidLine, Qt::RoundCap);
    painter.setPen(pen);
    painter.drawArc(ring, static_cast<int>(startAngle * 16), static_cast<int>(-sweep * 16));
    if (const double filled = clamped(fraction); filled > 0) {
        pen.setColor(Look::strainColour(palette, strain));
        painter.setPen(pen);
        painter.drawArc(ring, static_cast<int>(startAngle * 16), static_cast<int>(-sweep * filled * 16));
    }
    if (peak) {
        // A mark on the ring where the reading last stood highest, in the strain's colour.
        const double angle = angleOf(*peak);
        const double radius = ring.width() / 2;
        QPen tick(Look::strainColour(palette, strain), std::max(2.0, thickness / 3), Qt::SolidLine, Qt::FlatCap);
        painter.setPen(tick);
        painter.drawLine(onCircle(ring.center(), radius - thickness / 2, angle),
            onCircle(ring.center(), radius + thickness / 2, angle));
    }

    painter.setPen(palette.color(QPalette::WindowText));
    // Widths of the ring's inside at the two lines' heights, less a margin.
    painter.setFont(Look::fitted(Look::font(std::max(8.0, side * 0.13), QFont::DemiBold), value, side * 0.72));
    const QRectF middle(square.left(), square.top() + side * 0.30, side, side * 0.28);
    painter.drawText(middle, Qt::AlignCenter, value);
    painter.setPen(palette.color(QPalette::PlaceholderText));
    painter.setFont(Look::fitted(Look::font(std::max(7.0, side * 0.075)), title, side * 0.62));
    const QRectF below(square.left(), square.top() + side * 0.58, side, side * 0.16);
    painter.drawText(below, Qt::AlignCenter, title);
    painter.restore();
}

} // namespace vexel
