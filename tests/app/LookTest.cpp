// The house look's dial: the arc filled to the reading in its strain's
// colour, the peak marked, nonsense readings drawn empty.

#include "look/Dial.h"
#include "look/StrainColours.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

using namespace vexel;

namespace {

constexpr int side = 200;

QImage draw(const Dial& dial, Appearance appearance = Appearance::light)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Look::palette(appearance).color(QPalette::Window));
    QPainter painter(&image);
    dial.paint(painter, QRectF(0, 0, side, side), appearance);
    return image;
}

// The colour in the middle of the ring's stroke where `fraction` lies.
QColor onRing(const QImage& image, double fraction)
{
    const double thickness = side * 0.08;
    const double radius = (side - thickness) / 2;
    const double radians = Dial::angleOf(fraction) * std::numbers::pi / 180;
    const int x = static_cast<int>(std::lround(side / 2.0 + radius * std::cos(radians)));
    const int y = static_cast<int>(std::lround(side / 2.0 - radius * std::sin(radians)));
    return image.pixelColor(x, y);
}

} // namespace

TEST(Dial, FilledToTheReadingInItsStrainsColour)
{
    const auto light = Appearance::light;
    const QImage half = draw({0.5, std::nullopt, Strain::calm, "50%", "CPU"});
    EXPECT_EQ(onRing(half, 0.25), Look::strainColour(light, Strain::calm));
    EXPECT_EQ(onRing(half, 0.75), Look::track(light));

    const QImage hot = draw({0.9, std::nullopt, Strain::strained, "90%", "CPU"});
    EXPECT_EQ(onRing(hot, 0.85), Look::strainColour(light, Strain::strained));
    const QImage warm = draw({0.7, std::nullopt, Strain::elevated, "70%", "CPU"}, Appearance::dark);
    EXPECT_EQ(onRing(warm, 0.6), Look::strainColour(Appearance::dark, Strain::elevated));
    EXPECT_EQ(onRing(warm, 0.8), Look::track(Appearance::dark));

    // The peak stands where the needle was highest, past the value.
    const QImage peaked = draw({0.3, 0.8, Strain::calm, "30%", "CPU"});
    EXPECT_EQ(onRing(peaked, 0.8), Look::palette(light).color(QPalette::WindowText));
    EXPECT_EQ(onRing(peaked, 0.6), Look::track(light));

    // Readings off the scale: clamped, and a nonsense one drawn empty.
    EXPECT_EQ(
        onRing(draw({1.7, std::nullopt, Strain::strained, "", ""}), 0.99), Look::strainColour(light, Strain::strained));
    const QImage nonsense = draw({std::numeric_limits<double>::quiet_NaN(), std::nullopt, Strain::calm, "", ""});
    EXPECT_EQ(onRing(nonsense, 0.02), Look::track(light));
}
