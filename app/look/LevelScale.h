#pragma once

#include "Appearance.h"
#include "spikes/Strain.h"

#include <QRectF>
#include <QString>

#include <vector>

class QPainter;

namespace vexel {

// A scale of named steps side by side (Cool, Warm, Hot, Critical): the steps
// up to the current one filled in the current step's strain, the current
// one's name in bold, the others on the track.
struct LevelScale {
    struct Step {
        QString name;
        Strain strain = Strain::calm;
    };
    std::vector<Step> steps;
    size_t current = 0;

    void paint(QPainter& painter, const QRectF& area, const QPalette& palette) const;
    // What it shows, in words: the current step's name.
    [[nodiscard]] QString describe() const;

    // The rectangle of step `index`'s bar in `area` (its name goes under it).
    [[nodiscard]] QRectF stepRect(size_t index, const QRectF& area) const;
};

} // namespace vexel
