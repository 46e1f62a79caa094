// The house look: the dial's arc filled to the reading in its strain's
// colour with the peak marked, the trace scaled to its top with gaps where a
// reading is missing, the bank of bars each in its own strain; nonsense
// readings drawn empty.

#include "SystemLook.h"
#include "look/BarBank.h"
#include "look/Chart.h"
#include "look/Dial.h"
#include "look/PaintedView.h"
#include "look/Sparkline.h"
#include "look/StrainColours.h"

#include <QDBusVariant>
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
    dial.paint(painter, QRectF(0, 0, side, side), Look::palette(appearance));
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

    // The peak is marked on the ring where the reading was highest, past
    // the value, in the strain's colour.
    const QImage peaked = draw({0.3, 0.8, Strain::elevated, "30%", "CPU"});
    EXPECT_EQ(onRing(peaked, 0.8), Look::strainColour(light, Strain::elevated));
    EXPECT_EQ(onRing(peaked, 0.6), Look::track(light));

    // Readings off the scale: clamped, and a nonsense one drawn empty.
    EXPECT_EQ(
        onRing(draw({1.7, std::nullopt, Strain::strained, "", ""}), 0.99), Look::strainColour(light, Strain::strained));
    const QImage nonsense = draw({std::numeric_limits<double>::quiet_NaN(), std::nullopt, Strain::calm, "", ""});
    EXPECT_EQ(onRing(nonsense, 0.02), Look::track(light));
}

TEST(Sparkline, ScaledToItsTopWithGapsWhereReadingsAreMissing)
{
    const auto light = Appearance::light;
    const QColor page = Look::palette(light).color(QPalette::Window);
    Sparkline trace;
    trace.values = {0.5, 0.5, 0.5, std::nan(""), 2.0, 2.0, 2.0};
    trace.top = 2.0;
    trace.strain = Strain::elevated;
    QImage image(120, 40, QImage::Format_ARGB32);
    image.fill(page);
    QPainter painter(&image);
    trace.paint(painter, QRectF(0, 0, 120, 40), Look::palette(light));
    painter.end();
    const QColor amber = Look::strainColour(light, Strain::elevated);
    EXPECT_EQ(image.pixelColor(10, 30), amber); // a quarter of the top: 10 of 40 pixels up
    EXPECT_EQ(image.pixelColor(10, 5), page); // nothing drawn above the line
    EXPECT_EQ(image.pixelColor(110, 0), amber); // the top value reaches the top
    EXPECT_EQ(image.pixelColor(60, 39), page); // the missing reading leaves a gap, line and fill
    EXPECT_NE(image.pixelColor(10, 38), page); // the fill under the line
}

TEST(BarBank, EachBarToItsValueInItsOwnStrain)
{
    const auto dark = Appearance::dark;
    BarBank bank;
    bank.fractions = {0.25, 0.95, std::nan(""), 3.0};
    bank.strainOf = [](double f) { return f > 0.9 ? Strain::strained : Strain::calm; };
    QImage image(200, 100, QImage::Format_ARGB32);
    image.fill(Look::palette(dark).color(QPalette::Window));
    QPainter painter(&image);
    const QRectF area(0, 0, 200, 100);
    bank.paint(painter, area, Look::palette(dark));
    painter.end();
    const auto at = [&](size_t bar, int height) {
        const QRectF rect = bank.barRect(bar, area);
        return image.pixelColor(static_cast<int>(rect.center().x()), 100 - height);
    };
    EXPECT_EQ(at(0, 15), Look::strainColour(dark, Strain::calm));
    EXPECT_EQ(at(0, 40), Look::track(dark));
    EXPECT_EQ(at(1, 90), Look::strainColour(dark, Strain::strained));
    EXPECT_EQ(at(2, 5), Look::track(dark)); // a nonsense reading: empty
    EXPECT_EQ(at(3, 97), Look::strainColour(dark, Strain::strained)); // clamped to full
    EXPECT_LE(bank.barRect(3, area).right(), 200.5); // within the bank
    EXPECT_LE(bank.barRect(0, area).width(), 28.0); // four cores are four bars, not four slabs

    // Shown in a view, the bar under the pointer says its value.
    PaintedView view(QStringLiteral("Cores"), QSize(200, 100), nullptr);
    view.resize(200, 100);
    view.draw(bank);
    EXPECT_EQ(view.valueAt(bank.barRect(1, area).center()), QStringLiteral("2: 95%"));
    EXPECT_EQ(view.value(), QStringLiteral("1: 25 percent, 2: 95 percent, 3: 0 percent, 4: 100 percent"));
}

// A chart draws each series in its colour where its points are, and breaks
// the line where the readings stop for longer than the gap allows.
TEST(Chart, LinesWhereThePointsAreAndBreaksWhereTheyStop)
{
    const auto appearance = Appearance::light;
    Chart chart;
    chart.from = 0;
    chart.to = 100;
    chart.top = 10;
    chart.gapAfter = 15;
    // A level line at 5, from 0 to 40 and again from 70 to 100: nothing between.
    Chart::Series level{"Level", {}};
    for (int t = 0; t <= 40; t += 10)
        level.points.emplace_back(t, 5);
    for (int t = 70; t <= 100; t += 10)
        level.points.emplace_back(t, 5);
    chart.series = {level};
    QImage image(400, 200, QImage::Format_ARGB32);
    const QColor page = Look::palette(appearance).color(QPalette::Window);
    image.fill(page);
    QPainter painter(&image);
    const QRectF area(0, 0, 400, 200);
    chart.paint(painter, area, Look::palette(appearance));
    painter.end();
    const QRectF plot = Chart::plotOf(area);
    const auto at = [&](double t, double value) {
        const QPointF point = chart.place({t, value}, plot);
        return image.pixelColor(static_cast<int>(point.x()), static_cast<int>(std::lround(point.y())));
    };
    // The line is antialiased: nearer the series' colour than the page.
    const auto distance = [](const QColor& a, const QColor& b) {
        return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
    };
    const QColor line = Look::seriesColour(appearance, 0);
    EXPECT_LT(distance(at(20, 5), line), distance(at(20, 5), page));
    EXPECT_LT(distance(at(85, 5), line), distance(at(85, 5), page));
    EXPECT_EQ(at(55, 5), page); // the gap: no line and no fill
    EXPECT_NE(at(20, 2), page); // under the line: its soft fill
}

// More readings than pixels: each column holds the lowest, highest and
// average of its readings, and a pause in the readings starts a new run.
TEST(Chart, DenseReadingsBecomeABandAroundTheirAverage)
{
    Chart chart;
    chart.from = 0;
    chart.to = 1000;
    chart.gapAfter = 30;
    std::vector<QPointF> points;
    for (int t = 0; t < 400; t += 10)
        points.emplace_back(t, t % 20 == 0 ? 1 : 3); // alternating 1 and 3
    for (int t = 600; t < 1000; t += 10)
        points.emplace_back(t, 2);
    points.emplace_back(650, std::nan("")); // no reading: left out
    // 100 pixels, columns of 5: each holds 50 seconds, five readings.
    const auto runs = chart.columnsOf(points, 100, 5);
    ASSERT_EQ(runs.size(), 2U);
    ASSERT_EQ(runs[0].size(), 8U);
    EXPECT_EQ(runs[0][0].low, 1);
    EXPECT_EQ(runs[0][0].high, 3);
    EXPECT_DOUBLE_EQ(runs[0][0].mean, 1.8); // 1, 3, 1, 3, 1
    EXPECT_DOUBLE_EQ(runs[0][0].t, 20);
    EXPECT_DOUBLE_EQ(runs[1].back().t, 970); // the last column holds what it has
    EXPECT_EQ(runs[1].back().mean, 2);
    // Sparse readings keep a column each.
    EXPECT_EQ(chart.columnsOf(points, 1000, 5)[0].size(), 40U);
}

// The desktop's scheme keeps a platform palette of its appearance (a KDE
// colour scheme stays the user's) and stands Vexel's own in for one of the
// other appearance (GNOME's dark mode under Qt 6.4's light palette); the
// portal's values arrive wrapped in variants, and junk is no scheme.
TEST(SystemLook, TheSchemeChoosesAPaletteOnlyWhenThePlatformsDiffers)
{
    QPalette kdeDark = Look::palette(Appearance::dark);
    kdeDark.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    const QPalette fusionLight = Look::palette(Appearance::light);
    EXPECT_EQ(SystemLook::paletteFor(SystemLook::Scheme::dark, kdeDark), kdeDark);
    EXPECT_EQ(SystemLook::paletteFor(SystemLook::Scheme::noPreference, kdeDark), kdeDark);
    EXPECT_EQ(SystemLook::paletteFor(SystemLook::Scheme::light, kdeDark), Look::palette(Appearance::light));
    EXPECT_EQ(SystemLook::paletteFor(SystemLook::Scheme::dark, fusionLight), Look::palette(Appearance::dark));
    EXPECT_EQ(Look::strainColour(kdeDark, Strain::calm), QColor(0x3d, 0xae, 0xe9)); // the system's accent

    const auto wrapped = [](const QVariant& value) { return QVariant::fromValue(QDBusVariant(value)); };
    EXPECT_EQ(SystemLook::schemeOf(wrapped(wrapped(1U))), SystemLook::Scheme::dark);
    EXPECT_EQ(SystemLook::schemeOf(2U), SystemLook::Scheme::light);
    EXPECT_FALSE(SystemLook::schemeOf(wrapped(7U)));
    EXPECT_FALSE(SystemLook::schemeOf(wrapped(QStringLiteral("dark"))));
    EXPECT_FALSE(SystemLook::schemeOf({}));
}
