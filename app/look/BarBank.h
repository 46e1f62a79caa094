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
// the bottom to its fraction in the colour of its own strain, on a track.
struct BarBank {
    std::vector<double> fractions; // 0…1 each; clamped, and nonsense drawn empty
    std::function<Strain(double)> strainOf = [](double) { return Strain::calm; };
    std::vector<QString> names; // each bar's, for describe(); numbered from 1 where missing

    void paint(QPainter& painter, const QRectF& area, const QPalette& palette) const;
    // What it shows, in words: "1: 15%, 2: 40%…".
    [[nodiscard]] QString describe() const;

    // The rectangle of bar `index` (its track) in `area`.
    [[nodiscard]] QRectF barRect(size_t index, const QRectF& area) const;
};

} // namespace vexel
