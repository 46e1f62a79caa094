#pragma once

#include "Appearance.h"
#include "spikes/Strain.h"

#include <QRectF>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

class QPainter;

namespace vexel {

// A trace of recent values, oldest at the left, newest at the right edge,
// scaled so that `top` reaches the top of its plot; a soft fill under the
// line. Values that are not finite leave a gap; negative ones sit on the floor.
// A scaled trace reads against its scale: the top's value over the plot,
// faint lines at round steps, and marks under it.
struct Sparkline {
    std::vector<double> values;
    double top = 1; // the value drawn at the top (values above it are clipped to it)
    Strain strain = Strain::calm;
    std::function<QString(double)> valueText = [](double value) { return QString::number(value); };
    bool scaled = false;
    // Under a scaled plot, at fractions of its width (0 the oldest value, 1
    // the newest), each with its words or none (a tick between).
    std::vector<std::pair<double, QString>> marks;

    void paint(QPainter& painter, const QRectF& area, const QPalette& palette) const;
    // What it shows, in words: "now 12%, highest 64%".
    [[nodiscard]] QString describe() const;

    // The height in the plot, from its bottom, at which `value` is drawn.
    [[nodiscard]] double heightOf(double value, double plotHeight) const;
    // Where the trace is drawn in `area`: all of it, or inside the scale.
    [[nodiscard]] QRectF plotOf(const QRectF& area) const;
};

} // namespace vexel
