#pragma once

#include "Appearance.h"
#include "spikes/Strain.h"

#include <QRectF>
#include <QString>

#include <functional>

#include <vector>

class QPainter;

namespace vexel {

// A trace of recent values, oldest at the left, newest at the right edge,
// scaled so that `top` reaches the top of the area; a soft fill under the
// line. Values that are not finite leave a gap; negative ones sit on the floor.
struct Sparkline {
    std::vector<double> values;
    double top = 1; // the value drawn at the top (values above it are clipped to it)
    Strain strain = Strain::calm;
    std::function<QString(double)> valueText = [](double value) { return QString::number(value); };

    void paint(QPainter& painter, const QRectF& area, const QPalette& palette) const;
    // What it shows, in words: "now 12%, highest 64%".
    [[nodiscard]] QString describe() const;

    // The height in the area, from its bottom, at which `value` is drawn.
    [[nodiscard]] double heightOf(double value, double areaHeight) const;
};

} // namespace vexel
