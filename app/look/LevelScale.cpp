#include "look/LevelScale.h"

#include "look/StrainColours.h"

#include <QPainter>

#include <algorithm>

namespace vexel {

namespace {

constexpr double barHeight = 10;
constexpr double gap = 6;

} // namespace

QRectF LevelScale::stepRect(size_t index, const QRectF& area) const
{
    const auto count = static_cast<double>(std::max<size_t>(steps.size(), 1));
    const double width = (area.width() - gap * (count - 1)) / count;
    return {area.left() + (width + gap) * static_cast<double>(index), area.top(), width, barHeight};
}

void LevelScale::paint(QPainter& painter, const QRectF& area, const QPalette& palette) const
{
    if (steps.empty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const size_t reached = std::min(current, steps.size() - 1);
    const QColor filled = Look::strainColour(palette, steps[reached].strain);
    for (size_t i = 0; i < steps.size(); ++i) {
        const QRectF bar = stepRect(i, area);
        painter.setPen(Qt::NoPen);
        painter.setBrush(i <= reached ? filled : Look::track(palette));
        painter.drawRoundedRect(bar, barHeight / 2, barHeight / 2);
        QFont font = Look::font(11, i == reached ? QFont::DemiBold : QFont::Normal);
        painter.setFont(font);
        painter.setPen(i == reached ? palette.color(QPalette::WindowText) : palette.color(QPalette::PlaceholderText));
        const QRectF label(bar.left(), bar.bottom() + 4, bar.width(), area.bottom() - bar.bottom() - 4);
        painter.drawText(label, Qt::AlignHCenter | Qt::AlignTop, steps[i].name);
    }
    painter.restore();
}

QString LevelScale::describe() const
{
    return steps.empty() ? QString() : steps[std::min(current, steps.size() - 1)].name;
}

} // namespace vexel
