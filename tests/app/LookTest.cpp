// The house look, in pictures a reviewer has looked at: dials filled to their
// reading in their strain's colour with the peak marked (one off the scale,
// clamped full; one nonsense, drawn empty), a trace scaled to its top with a
// gap where a reading is missing, a bank of bars each in its own strain, and
// a chart whose line breaks where the readings stop. A change to how any of
// them is drawn changes its picture.

#include "SystemLook.h"
#include "look/BarBank.h"
#include "look/Chart.h"
#include "look/Dial.h"
#include "look/PaintedView.h"
#include "look/Sparkline.h"
#include "look/StrainColours.h"
#include "support/GoldenImage.h"

#include <QDBusVariant>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vexel;

namespace {

const double nonsense = std::numeric_limits<double>::quiet_NaN();

BarBank bars()
{
    BarBank bank;
    bank.fractions = {0.25, 0.95, nonsense, 3.0};
    bank.strainOf = [](double f) { return f > 0.9 ? Strain::strained : Strain::calm; };
    return bank;
}

QImage drawPieces(Appearance appearance)
{
    const QPalette palette = Look::palette(appearance);
    QImage image(520, 470, QImage::Format_ARGB32);
    image.fill(palette.color(QPalette::Window));
    QPainter painter(&image);
    const std::vector<Dial> dials{{0.5, std::nullopt, Strain::calm, "50%", "CPU"},
        {0.3, 0.8, Strain::elevated, "30%", "Peak"}, {1.7, std::nullopt, Strain::strained, "170%", "Over"},
        {nonsense, std::nullopt, Strain::calm, "", "Nonsense"}};
    for (size_t i = 0; i < dials.size(); ++i)
        dials[i].paint(painter, QRectF(10 + 125.0 * static_cast<double>(i), 10, 120, 120), palette);

    Sparkline trace;
    trace.values = {0.5, 0.5, 0.5, nonsense, 2.0, 2.0, 2.0};
    trace.top = 2.0;
    trace.strain = Strain::elevated;
    trace.paint(painter, QRectF(10, 160, 240, 60), palette);
    bars().paint(painter, QRectF(270, 140, 240, 100), palette);

    // A level line at 5, from 0 to 40 and again from 70 to 100: nothing between.
    Chart chart;
    chart.from = 0;
    chart.to = 100;
    chart.top = 10;
    chart.gapAfter = 15;
    Chart::Series level{"Level", {}};
    for (const int t : {0, 10, 20, 30, 40, 70, 80, 90, 100})
        level.points.emplace_back(t, 5);
    chart.series = {level};
    chart.paint(painter, QRectF(10, 260, 500, 200), palette);
    return image;
}

} // namespace

TEST(Look, EachPieceAsItsGoldenPicture)
{
    const auto golden = std::filesystem::path(VEXEL_SOURCE_DIR) / "tests/golden/look";
    vexel::testing::expectGoldenImage(drawPieces(Appearance::light), golden / "pieces-light.png");
    vexel::testing::expectGoldenImage(drawPieces(Appearance::dark), golden / "pieces-dark.png");
}

// Four cores are four bars within the bank, not four slabs; shown in a view,
// the bar under the pointer says its value, and the view all of them.
TEST(BarBank, EachBarWithinTheBankAndSaidInWords)
{
    const BarBank bank = bars();
    const QRectF area(0, 0, 200, 100);
    EXPECT_LE(bank.barRect(3, area).right(), 200.5);
    EXPECT_LE(bank.barRect(0, area).width(), 28.0);
    PaintedView view(QStringLiteral("Cores"), QSize(200, 100), nullptr);
    view.resize(200, 100);
    view.draw(bank);
    EXPECT_EQ(view.valueAt(bank.barRect(1, area).center()), QStringLiteral("2: 95%"));
    EXPECT_EQ(view.value(), QStringLiteral("1: 25 percent, 2: 95 percent, 3: 0 percent, 4: 100 percent"));
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
