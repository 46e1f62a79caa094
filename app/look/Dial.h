#pragma once

#include "Appearance.h"
#include "spikes/Strain.h"

#include <QRectF>
#include <QString>

#include <optional>

class QPainter;

namespace vexel {

// One reading as a dial: an arc of 270 degrees opening downwards, filled
// clockwise from the lower left in the strain's colour, a tick at the recent
// peak, the value in the middle and the title under it.
struct Dial {
    double fraction = 0; // 0…1 of the arc; outside that range it is clamped
    std::optional<double> peak; // the recent peak on the same scale
    Strain strain = Strain::calm;
    QString value; // "34%"
    QString title; // "CPU"

    // Draws the dial in the largest square centred in `area`.
    void paint(QPainter& painter, const QRectF& area, const QPalette& palette) const;
    // What it shows, in words: its value.
    [[nodiscard]] QString describe() const { return value; }

    // Where on the arc a fraction lies, in Qt's degrees (0 at three
    // o'clock, counter-clockwise): 225 for 0, -45 for 1.
    [[nodiscard]] static double angleOf(double fraction);
};

} // namespace vexel
