#include "look/Sparkline.h"

#include "look/StrainColours.h"
#include "texts/Vexel.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <optional>

namespace vexel {

double Sparkline::heightOf(double value, double areaHeight) const
{
    if (!(top > 0) || !std::isfinite(value))
        return 0;
    return std::clamp(value / top, 0.0, 1.0) * areaHeight;
}

void Sparkline::paint(QPainter& painter, const QRectF& area, const QPalette& palette) const
{
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
