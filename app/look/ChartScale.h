#pragma once

#include <QRectF>
#include <QString>

#include <functional>
#include <vector>

class QPainter;
class QPalette;

namespace vexel {

// The scale drawn around a trace or a chart, so that a reading is read
// against its units and its times: faint lines at round steps under a round
// top, the top's value over the plot, and marks under it.
namespace ChartScale {

// The height of the row of words over the plot (the top value, the legend)
// and of the row of time marks under it.
constexpr double wordsHeight = 16;

// A mark under the plot: at `x` (pixels), with its words (a major mark) or
// without (a shorter tick between them).
struct Mark {
    double x = 0;
    QString label;
};

// The floor, the top line and a faint line at each round step between, for
// a plot whose top stands for `top`.
void drawGrid(QPainter& painter, const QRectF& plot, double top, const QPalette& palette);
// The top's value, right-aligned in the row over the plot.
void drawTopValue(QPainter& painter, const QRectF& plot, const QString& words, const QPalette& palette);
// The marks under the plot, each label centred under its tick and kept
// inside `left`…`right`.
void drawMarks(QPainter& painter, const QRectF& plot, const std::vector<Mark>& marks, const QPalette& palette);

} // namespace ChartScale

} // namespace vexel
