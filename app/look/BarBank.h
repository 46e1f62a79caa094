#pragma once

#include "Appearance.h"
#include "spikes/Strain.h"

#include <QRectF>
#include <QString>

#include <functional>
#include <vector>

class QPainter;

namespace vexel {

// A row of vertical bars, one per value (the bank of cores): each filled from
// the bottom to its fraction in the colour of its own strain, on a track. A
// labelled bank names each bar under it.
struct BarBank {
    std::vector<double> fractions; // 0…1 each; clamped, and nonsense drawn empty
    std::function<Strain(double)> strainOf = [](double) { return Strain::calm; };
    std::vector<QString> names; // each bar's; numbered from 1 where missing
    std::vector<QString> values; // each bar's value in words; its percent where missing
    bool labelled = false;

    void paint(QPainter& painter, const QRectF& area, const QPalette& palette) const;
    // What it shows, in words: "1: 15%, 2: 40%…", or "Mon: 1.2 GB…".
    [[nodiscard]] QString describe() const;
    // What the bar under `point` shows: "Mon: 1.2 GB"; nothing between bars.
    [[nodiscard]] QString describeAt(const QPointF& point, const QRectF& area) const;

    // The rectangle of bar `index` (its track) in `area`.
    [[nodiscard]] QRectF barRect(size_t index, const QRectF& area) const;

private:
    [[nodiscard]] QString nameOf(size_t index) const;
    [[nodiscard]] QString describeBar(size_t index) const;
};

} // namespace vexel
