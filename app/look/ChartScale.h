#pragma once

#include <QRectF>
#include <QString>

#include <vector>

class QPainter;
class QPalette;

namespace vexel {

// The scale drawn around a trace or a chart, so that a reading is read
// against its units and its times: the floor, the top line and faint lines
// at round steps between, the top's value over the plot, and marks under it.
namespace ChartScale {

// The height of the row of words over the plot (the top value, a legend)
// and of the row of marks under it.
constexpr double wordsHeight = 16;

// A mark under the plot: at `x` (pixels), with its words (a major mark) or
// without (a shorter tick between them).
struct Mark {
    double x = 0;
    QString label;
};

// The plot inside `area`, leaving the rows over and under it for the scale.
[[nodiscard]] QRectF plotIn(const QRectF& area);

// The scale around `plot`, whose top stands for `top` (said as `topWords`);
// each mark's words centred under its tick and kept within the plot's width.
void draw(QPainter& painter, const QRectF& plot, double top, const QString& topWords, const std::vector<Mark>& marks,
    const QPalette& palette);

} // namespace ChartScale

} // namespace vexel
