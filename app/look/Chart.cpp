#include "look/Chart.h"

#include "look/ChartScale.h"
#include "look/StrainColours.h"
#include "texts/Vexel.h"

#include <QPainter>
#include <QPainterPath>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace vexel {

namespace {

// Readings closer than this share a column.
constexpr double columnPixels = 5;

void drawLegend(
    QPainter& painter, const QRectF& area, const std::vector<Chart::Series>& series, const QPalette& palette)
{
    painter.save();
    painter.setFont(Look::font(10));
    double x = area.left();
    for (size_t i = 0; i < series.size(); ++i) {
        if (series[i].name.isEmpty())
            continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(Look::seriesColour(palette, i));
        painter.drawRoundedRect(QRectF(x, area.top() + 4, 10, 10), 2, 2);
        painter.setPen(palette.color(QPalette::WindowText));
        QRectF used;
        painter.drawText(QRectF(x + 14, area.top(), 200, ChartScale::wordsHeight), Qt::AlignLeft | Qt::AlignVCenter,
            series[i].name, &used);
        x = used.right() + 16;
    }
    painter.restore();
}

} // namespace

QRectF Chart::plotOf(const QRectF& area)
{
    return ChartScale::plotIn(area);
}

QPointF Chart::place(const QPointF& point, const QRectF& plot) const
{
    const double span = to > from ? to - from : 1;
    const double x = plot.left() + plot.width() * std::clamp((point.x() - from) / span, 0.0, 1.0);
    const double y = plot.bottom() - plot.height() * std::clamp(top > 0 ? point.y() / top : 0.0, 0.0, 1.0);
    return {x, y};
}

std::vector<std::vector<Chart::Column>> Chart::columnsOf(
    const std::vector<QPointF>& points, double width, double pixels) const
{
    const double span = to > from ? to - from : 1;
    const double perColumn = span * std::max(pixels, 1.0) / std::max(width, 1.0);
    std::vector<std::vector<Column>> runs;
    Column column;
    double sum = 0;
    int count = 0;
    double timeSum = 0;
    double bin = NAN;
    double previous = NAN;
    const auto close = [&] {
        if (count == 0)
            return;
        column.mean = sum / count;
        column.t = timeSum / count;
        runs.back().push_back(column);
        count = 0;
    };
    for (const auto& point : points) {
        if (!std::isfinite(point.x()) || !std::isfinite(point.y()))
            continue;
        const bool gap = runs.empty() || (gapAfter > 0 && point.x() - previous > gapAfter);
        const double here = std::floor((point.x() - from) / perColumn);
        if (gap || here != bin) {
            close();
            if (gap)
                runs.emplace_back();
            bin = here;
            column = {0, point.y(), point.y(), 0};
            sum = timeSum = 0;
        }
        column.low = std::min(column.low, point.y());
        column.high = std::max(column.high, point.y());
        sum += point.y();
        timeSum += point.x();
        ++count;
        previous = point.x();
    }
    close();
    return runs;
}

void Chart::paint(QPainter& painter, const QRectF& area, const QPalette& palette) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plot = plotOf(area);
    drawLegend(painter, area, series, palette);
    std::vector<ChartScale::Mark> marks;
    for (const double t : minorTimes)
        marks.push_back({place({t, 0}, plot).x(), {}});
    for (const auto& [t, label] : times)
        marks.push_back({place({t, 0}, plot).x(), label});
    ChartScale::draw(painter, plot, top, valueText(top), marks, palette);

    // The first series last, over the others.
    for (size_t i = series.size(); i-- > 0;) {
        const QColor colour = Look::seriesColour(palette, i);
        QColor soft = colour;
        soft.setAlphaF(0.18F);
        QColor band = colour;
        band.setAlphaF(0.3F);
        for (const auto& run : columnsOf(series[i].points, plot.width(), columnPixels)) {
            QPainterPath line;
            QPainterPath spread;
            for (size_t c = 0; c < run.size(); ++c) {
                const QPointF at = place({run[c].t, run[c].mean}, plot);
                c == 0 ? line.moveTo(at) : line.lineTo(at);
                const QPointF high = place({run[c].t, run[c].high}, plot);
                c == 0 ? spread.moveTo(high) : spread.lineTo(high);
            }
            for (size_t c = run.size(); c-- > 0;)
                spread.lineTo(place({run[c].t, run[c].low}, plot));
            spread.closeSubpath();
            if (i == 0) {
                QPainterPath under = line;
                under.lineTo(place({run.back().t, 0}, plot));
                under.lineTo(place({run.front().t, 0}, plot));
                under.closeSubpath();
                painter.fillPath(under, soft);
            }
            painter.fillPath(spread, band);
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(colour, 1.5));
            painter.drawPath(line);
        }
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
        const QString name = one.name.isEmpty() ? Vexel::tr("Readings") : one.name;
        parts << (count == 0
                ? Vexel::tr("%1: no readings").arg(name)
                : Vexel::tr("%1: average %2, highest %3").arg(name, valueText(sum / count), valueText(peak)));
    }
    return parts.join(QStringLiteral("; "));
}

} // namespace vexel
