#include "look/BarBank.h"

#include "look/ChartScale.h"
#include "look/StrainColours.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace vexel {

namespace {

// A bar no wider than this: two cores are two bars, not two slabs.
constexpr double widestBar = 28;

} // namespace

QRectF BarBank::barRect(size_t index, const QRectF& frame) const
{
    const QRectF area = labelled ? frame.adjusted(0, 0, 0, -ChartScale::wordsHeight) : frame;
    const auto count = static_cast<double>(std::max<size_t>(fractions.size(), 1));
    // Gaps a third of a bar wide, none after the last; a bank of few cores
    // keeps its bars narrow and stands at the left.
    const double pitch = std::min(area.width() / (count - 1.0 / 3.0), widestBar * 3 / 2);
    const double width = pitch * 2 / 3;
    return {area.left() + pitch * static_cast<double>(index), area.top(), width, area.height()};
}

void BarBank::paint(QPainter& painter, const QRectF& area, const QPalette& palette) const
{
    painter.save();
    if (labelled) {
        painter.setFont(Look::font(10));
        painter.setPen(palette.color(QPalette::PlaceholderText));
        for (size_t i = 0; i < fractions.size(); ++i) {
            const QRectF bar = barRect(i, area);
            const QRectF under(bar.center().x() - 20, bar.bottom(), 40, ChartScale::wordsHeight);
            painter.drawText(under, Qt::AlignHCenter | Qt::AlignBottom, nameOf(i));
        }
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (size_t i = 0; i < fractions.size(); ++i) {
        const QRectF bar = barRect(i, area);
        const double radius = std::min(2.0, bar.width() / 2);
        painter.setBrush(Look::track(palette));
        painter.drawRoundedRect(bar, radius, radius);
        const double value = std::isfinite(fractions[i]) ? std::clamp(fractions[i], 0.0, 1.0) : 0.0;
        if (value <= 0)
            continue;
        const QRectF filled(bar.left(), bar.bottom() - bar.height() * value, bar.width(), bar.height() * value);
        painter.setBrush(Look::strainColour(palette, strainOf(fractions[i])));
        painter.drawRoundedRect(filled, radius, radius);
    }
    painter.restore();
}

QString BarBank::nameOf(size_t index) const
{
    return index < names.size() ? names[index] : QString::number(index + 1);
}

QString BarBank::describeBar(size_t index) const
{
    if (index < values.size())
        return QStringLiteral("%1: %2").arg(nameOf(index), values[index]);
    const double fraction = std::isfinite(fractions[index]) ? std::clamp(fractions[index], 0.0, 1.0) : 0;
    return QStringLiteral("%1: %2%").arg(nameOf(index)).arg(std::lround(fraction * 100));
}

QString BarBank::describe() const
{
    QStringList parts;
    for (size_t i = 0; i < fractions.size(); ++i)
        parts << describeBar(i);
    return parts.join(QStringLiteral(", "));
}

QString BarBank::describeAt(const QPointF& point, const QRectF& area) const
{
    for (size_t i = 0; i < fractions.size(); ++i) {
        const QRectF bar = barRect(i, area);
        if (point.x() >= bar.left() && point.x() <= bar.right())
            return describeBar(i);
    }
    return {};
}

} // namespace vexel
