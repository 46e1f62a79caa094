#include "look/ChartScale.h"

#include "Appearance.h"
#include "format/RoundSteps.h"
#include "look/StrainColours.h"

#include <QPainter>

#include <algorithm>

namespace vexel::ChartScale {

namespace {

constexpr double majorTick = 3;
constexpr double minorTick = 2;

void drawGrid(QPainter& painter, const QRectF& plot, double top, const QPalette& palette)
{
    painter.save();
    const QColor track = Look::track(palette);
    painter.setPen(QPen(track, 1));
    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    painter.drawLine(plot.topLeft(), plot.topRight());
    if (top > 0) {
        painter.setPen(QPen(track, 1, Qt::DashLine));
        const double step = RoundSteps::gridStep(top);
        for (double value = step; value < top * (1 - 1e-9); value += step) {
            const double y = plot.bottom() - plot.height() * value / top;
            painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        }
    }
    painter.restore();
}

void drawTopValue(QPainter& painter, const QRectF& plot, const QString& words, const QPalette& palette)
{
    painter.save();
    painter.setFont(Look::font(10));
    painter.setPen(palette.color(QPalette::PlaceholderText));
    const QRectF row(plot.left(), plot.top() - wordsHeight, plot.width(), wordsHeight);
    painter.drawText(row, Qt::AlignRight | Qt::AlignVCenter, words);
    painter.restore();
}

void drawMarks(QPainter& painter, const QRectF& plot, const std::vector<Mark>& marks, const QPalette& palette)
{
    painter.save();
    painter.setFont(Look::font(10));
    const QColor secondary = palette.color(QPalette::PlaceholderText);
    const QFontMetricsF metrics(painter.font());
    for (const auto& mark : marks) {
        const bool major = !mark.label.isEmpty();
        painter.setPen(major ? secondary : Look::track(palette));
        painter.drawLine(
            QPointF(mark.x, plot.bottom()), QPointF(mark.x, plot.bottom() + (major ? majorTick : minorTick)));
        if (!major)
            continue;
        const double width = metrics.horizontalAdvance(mark.label) + 2;
        const double left = std::clamp(mark.x - width / 2, plot.left(), std::max(plot.left(), plot.right() - width));
        painter.drawText(QRectF(left, plot.bottom() + majorTick, width, wordsHeight - majorTick),
            Qt::AlignHCenter | Qt::AlignBottom, mark.label);
    }
    painter.restore();
}

} // namespace

QRectF plotIn(const QRectF& area)
{
    return area.adjusted(0, wordsHeight + 2, 0, -wordsHeight);
}

void draw(QPainter& painter, const QRectF& plot, double top, const QString& topWords, const std::vector<Mark>& marks,
    const QPalette& palette)
{
    drawGrid(painter, plot, top, palette);
    drawTopValue(painter, plot, topWords, palette);
    drawMarks(painter, plot, marks, palette);
}

} // namespace vexel::ChartScale
