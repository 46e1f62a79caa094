#include "look/Sparkline.h"

#include "look/ChartScale.h"
#include "look/StrainColours.h"
#include "texts/Vexel.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <optional>

namespace vexel {

double Sparkline::heightOf(double value, double plotHeight) const
{
    if (!(top > 0) || !std::isfinite(value))
        return 0;
    return std::clamp(value / top, 0.0, 1.0) * plotHeight;
}

QRectF Sparkline::plotOf(const QRectF& area) const
{
    return scaled ? ChartScale::plotIn(area) : area;
}

void Sparkline::paint(QPainter& painter, const QRectF& frame, const QPalette& palette) const
{
    const QRectF area = plotOf(frame);
    if (scaled) {
        std::vector<ChartScale::Mark> ticks;
        for (const auto& [fraction, label] : marks)
            ticks.push_back({area.left() + area.width() * std::clamp(fraction, 0.0, 1.0), label});
        ChartScale::draw(painter, area, top, valueText(top), ticks, palette);
    }
    if (values.size() < 2)
        return;
    const double step = area.width() / static_cast<double>(values.size() - 1);
    // Runs of finite values, each drawn as one line with its fill.
    std::vector<QPolygonF> runs(1);
    for (size_t i = 0; i < values.size(); ++i) {
        if (!std::isfinite(values[i])) {
            if (!runs.back().isEmpty())
                runs.emplace_back();
            continue;
        }
        runs.back() << QPointF(
            area.left() + step * static_cast<double>(i), area.bottom() - heightOf(values[i], area.height()));
    }
    const QColor colour = Look::strainColour(palette, strain);
    QColor fill = colour;
    fill.setAlphaF(0.18F);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& run : runs) {
        if (run.size() < 2)
            continue;
        QPainterPath under;
        under.moveTo(run.front().x(), area.bottom());
        for (const auto& point : run)
            under.lineTo(point);
        under.lineTo(run.back().x(), area.bottom());
        under.closeSubpath();
        painter.fillPath(under, fill);
        painter.setPen(QPen(colour, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(run);
    }
    painter.restore();
}

QString Sparkline::describe() const
{
    std::optional<double> last;
    std::optional<double> peak;
    for (const double value : values) {
        if (!std::isfinite(value))
            continue;
        last = value;
        peak = std::max(peak.value_or(value), value);
    }
    if (!last)
        return Vexel::tr("no readings yet");
    return Vexel::tr("now %1, highest %2").arg(valueText(*last), valueText(*peak));
}

} // namespace vexel
