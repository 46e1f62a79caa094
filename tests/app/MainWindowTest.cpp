#include "MainWindow.h"
#include "DemoModel.h"
#include "snapshot/SnapshotMode.h"

#include <QApplication>
#include <gtest/gtest.h>

using namespace vexel;

TEST(Routes, IdentifiersRoundTripAndShortcutsAreDistinct)
{
    QStringList shortcuts;
    for (const auto route : allRoutes) {
        EXPECT_EQ(routeFromIdentifier(identifier(route)), route);
        shortcuts << QString::fromStdString(shortcut(route));
    }
    shortcuts.removeDuplicates();
    EXPECT_EQ(shortcuts.size(), 10);
    EXPECT_FALSE(routeFromIdentifier("settings"));
}

// The desktop turning dark while Vexel runs: a window built light then looks
// exactly like one built dark, on every page, and back.
TEST(MainWindow, FollowsThePaletteTurningDarkAndBack)
{
    const auto demo = vexel::testing::readDemoModel(Platform::linux, 2);
    MainWindow turned;
    turned.bind(*demo->model);
    turned.resize(900, 640);
    QApplication::setPalette(Look::palette(Appearance::dark));
    MainWindow built;
    built.bind(*demo->model);
    built.resize(900, 640);
    for (const auto route : allRoutes) {
        turned.showRoute(route);
        built.showRoute(route);
        demo->settle(); // the history a page asks for
        EXPECT_EQ(picture(turned).toImage(), picture(built).toImage()) << identifier(route);
    }
    QApplication::setPalette(Look::palette(Appearance::light));
    const QImage light = picture(turned).toImage();
    EXPECT_GT(light.pixelColor(light.width() - 5, light.height() - 5).lightness(), 200);
    EXPECT_EQ(light.pixelColor(5, light.height() - 5), Look::sidebar(Appearance::light));
}
