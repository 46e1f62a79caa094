#include "look/Chart.h"

#include "look/StrainColours.h"
#include "texts/Vexel.h"

#include <QPainter>
#include <QPainterPath>
#include <QStringList>

#include <algorithm>
#include <array>

namespace vexel {

namespace {

constexpr double legendHeight = 20;
constexpr double timesHeight = 18;

} // namespace

QRectF Chart::plotOf(const QRectF& area)
{
    return area.adjusted(0, legendHeight, 0, -timesHeight);
}

QPointF Chart::place(const QPointF& point, const QRectF& plot) const
{
    const double span = to > from ? to - from : 1;
    const double x = plot.left() + plot.width() * std::clamp((point.x() - from) / span, 0.0, 1.0);
    const double y = plot.bottom() - plot.height() * std::clamp(top > 0 ? point.y() / top : 0.0, 0.0, 1.0);
    return {x, y};
}

void Chart::paint(QPainter& painter, const QRectF& area, const QPalette& palette) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plot = plotOf(area);
    const QColor secondary = palette.color(QPalette::PlaceholderText);
    painter.setFont(Look::font(10));

    // The legend: a swatch and the name of each series, then the top value at the right.
    double x = area.left();
    for (size_t i = 0; i < series.size(); ++i) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Look::seriesColour(palette, i));
        painter.drawRoundedRect(QRectF(x, area.top() + 5, 10, 10), 2, 2);
        painter.setPen(palette.color(QPalette::WindowText));
        const QRectF name(x + 14, area.top(), 200, legendHeight);
        QRectF used;
        painter.drawText(name, Qt::AlignLeft | Qt::AlignVCenter, series[i].name, &used);
        x = used.right() + 16;
    }
    painter.setPen(secondary);
    painter.drawText(
        QRectF(area.left(), area.top(), area.width(), legendHeight), Qt::AlignRight | Qt::AlignVCenter, valueText(top));

    // The floor, the top line and the times under the plot.
    painter.setPen(QPen(Look::track(palette), 1));
    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    painter.drawLine(plot.topLeft(), plot.topRight());
    painter.setPen(secondary);
    const QFontMetricsF metrics(painter.font());
    for (const auto& [t, label] : times) {
        // Centred under its time, kept inside the chart at either end.
        const double width = metrics.horizontalAdvance(label) + 2;
        const double centre = place({t, 0}, plot).x();
        const double left = std::clamp(centre - width / 2, area.left(), area.right() - width);
        painter.drawLine(QPointF(centre, plot.bottom()), QPointF(centre, plot.bottom() + 3));
        painter.drawText(QRectF(left, plot.bottom() + 3, width, timesHeight - 3), Qt::AlignCenter, label);
    }

    // The lines, each broken where the readings stop; the first series filled under.
    for (size_t i = series.size(); i-- > 0;) {
        const auto& points = series[i].points;
        QPainterPath line;
        QPainterPath fill;
        bool open = false;
        QPointF start;
        QPointF last;
        for (size_t p = 0; p < points.size(); ++p) {
            const QPointF at = place(points[p], plot);
            const bool gap = p > 0 && gapAfter > 0 && points[p].x() - points[p - 1].x() > gapAfter;
            if (open && gap) {
                fill.lineTo(last.x(), plot.bottom());
                fill.lineTo(start.x(), plot.bottom());
                fill.closeSubpath();
                open = false;
            }
            if (!open) {
                line.moveTo(at);
                fill.moveTo(at);
                start = at;
                open = true;
            } else {
                line.lineTo(at);
                fill.lineTo(at);
            }
            last = at;
        }
        if (open) {
            fill.lineTo(last.x(), plot.bottom());
            fill.lineTo(start.x(), plot.bottom());
            fill.closeSubpath();
        }
        QColor colour = Look::seriesColour(palette, i);
        if (i == 0) {
            QColor soft = colour;
            soft.setAlphaF(0.18F);
            painter.fillPath(fill, soft);
        }
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colour, 1.5));
        painter.drawPath(line);
    }
    painter.restore();
}

QString Chart::describe() const
{
    QStringList parts;
    for (const auto& one : series) {
        double sum = 0;
        double peak = 0;
        int count = 0;
        for (const auto& point : one.points) {
            if (!std::isfinite(point.y()))
                continue;
            sum += point.y();
            peak = count == 0 ? point.y() : std::max(peak, point.y());
            ++count;
        }
        parts << (count == 0
                ? Vexel::tr("%1: no readings").arg(one.name)
                : Vexel::tr("%1: average %2, highest %3").arg(one.name, valueText(sum / count), valueText(peak)));
    }
    return parts.join(QStringLiteral("; "));
}

} // namespace vexel
