#pragma once

#include "Appearance.h"

#include <QPointF>
#include <QRectF>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

class QPainter;

namespace vexel {

// A chart of one or more series over time with a legend above it: lines in
// the series' colours, a soft fill under the first, a break wherever the
// readings stop for longer than `gapAfter`, the top value at the upper right
// and the marked times under the plot.
struct Chart {
    struct Series {
        QString name;
        std::vector<QPointF> points; // x: seconds since the epoch, y: the value
    };
    std::vector<Series> series;
    double from = 0; // the time at the left edge
    double to = 1; // the time at the right edge
    double top = 1; // the value at the top; higher values are clipped
    double gapAfter = 0; // seconds; 0 never breaks
    std::function<QString(double)> valueText = [](double value) { return QString::number(value); };
    std::vector<std::pair<double, QString>> times; // marked under the plot

    void paint(QPainter& painter, const QRectF& area, const QPalette& palette) const;
    // What it shows, in words: each series' average and peak.
    [[nodiscard]] QString describe() const;

    // The plot inside `area`, under the legend and above the times.
    [[nodiscard]] static QRectF plotOf(const QRectF& area);
    // Where a point lies in the plot.
    [[nodiscard]] QPointF place(const QPointF& point, const QRectF& plot) const;
};

} // namespace vexel
