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

// A chart of one or more series over time: a legend and the top value above
// it, faint lines at round steps, the marked times under the plot. Each
// series is a line in its colour (a soft fill under the first), broken
// wherever the readings stop for longer than `gapAfter`. Where there are
// more readings than the plot has room for, each few pixels show the band
// from their lowest to their highest with the line through their average.
struct Chart {
    struct Series {
        QString name; // empty: no legend
        std::vector<QPointF> points; // x: seconds since the epoch, y: the value
    };
    // The readings that share a few pixels of the plot.
    struct Column {
        double t = 0; // their mean time
        double low = 0;
        double high = 0;
        double mean = 0;
    };
    std::vector<Series> series;
    double from = 0; // the time at the left edge
    double to = 1; // the time at the right edge
    double top = 1; // the value at the top; higher values are clipped
    double gapAfter = 0; // seconds; 0 never breaks
    std::function<QString(double)> valueText = [](double value) { return QString::number(value); };
    std::vector<std::pair<double, QString>> times; // marked and named under the plot
    std::vector<double> minorTimes; // ticked between them

    void paint(QPainter& painter, const QRectF& area, const QPalette& palette) const;
    // What it shows, in words: each series' average and peak.
    [[nodiscard]] QString describe() const;

    // The plot inside `area`, under the legend and above the times.
    [[nodiscard]] static QRectF plotOf(const QRectF& area);
    // Where a point lies in the plot.
    [[nodiscard]] QPointF place(const QPointF& point, const QRectF& plot) const;
    // A series' points gathered into columns `pixels` wide across a plot
    // `width` wide: one run of columns per stretch of readings.
    [[nodiscard]] std::vector<std::vector<Column>> columnsOf(
        const std::vector<QPointF>& points, double width, double pixels) const;
};

} // namespace vexel
