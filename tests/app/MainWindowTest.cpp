#include "MainWindow.h"
#include "DemoModel.h"
#include "RouteIcon.h"
#include "snapshot/SnapshotMode.h"

#include <QApplication>
#include <QIcon>
#include <gtest/gtest.h>

using namespace vexel;

// Each route has a symbol on every desktop: the icon theme's symbolic one
// where the theme draws it (Adwaita has a disk, not a CPU), else Vexel's own.
TEST(Routes, SymbolsFromTheIconThemeWithVexelsOwnBehind)
{
    const QString theme = QIcon::themeName();
    const QStringList paths = QIcon::themeSearchPaths();
    QIcon::setThemeSearchPaths({QStringLiteral("/usr/share/icons")});
    QIcon::setThemeName(QStringLiteral("Adwaita"));
    EXPECT_EQ(routeIcon(Route::disk).name(), QStringLiteral("drive-harddisk-symbolic"));
    EXPECT_EQ(routeIcon(Route::history).name(), QStringLiteral("document-open-recent-symbolic"));
    const QIcon cpu = routeIcon(Route::cpu);
    EXPECT_TRUE(cpu.name().isEmpty());
    EXPECT_FALSE(cpu.pixmap(16).isNull());
    // No theme at all: every route still has its symbol, sharp on 2× screens.
    QIcon::setThemeSearchPaths({});
    for (const auto route : allRoutes) {
        const QIcon icon = routeIcon(route);
        EXPECT_EQ(icon.pixmap(QSize(16, 16), 2.0).size(), QSize(32, 32)) << identifier(route);
    }
    QIcon::setThemeSearchPaths(paths);
    QIcon::setThemeName(theme);
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
