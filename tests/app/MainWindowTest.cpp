#include "MainWindow.h"
#include "pages/OverviewPage.h"

#include <QDir>
#include <QImage>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace vexel;

namespace {

// Pictures land in the build tree for people to open and look at.
QString picturePath(const QString& name)
{
    const QString folder = QStringLiteral(VEXEL_BINARY_DIR) + QStringLiteral("/pictures");
    QDir().mkpath(folder);
    return folder + QLatin1Char('/') + name;
}

QImage render(Appearance appearance)
{
    MainWindow window(appearance);
    window.resize(960, 620);
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

TEST(MainWindow, SidebarListsTheTenRoutesInOrder)
{
    MainWindow window(Appearance::light);
    EXPECT_EQ(window.sidebarTitles(),
        (QStringList{
            "Overview", "Apps", "CPU", "Memory", "Disk", "Network", "GPU", "Power & Heat", "History", "Developers"}));
    EXPECT_TRUE(window.overview()->waitingForFirstReading());
    EXPECT_EQ(window.currentRoute(), Route::overview);
}

TEST(MainWindow, ChoosingARouteAnnouncesIt)
{
    MainWindow window(Appearance::dark);
    QSignalSpy spy(&window, &MainWindow::routeChanged);
    window.showRoute(Route::developers);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<Route>(), Route::developers);
    EXPECT_EQ(window.currentRoute(), Route::developers);
}

TEST(MainWindow, RendersTheSameInLightAndDarkEveryTime)
{
    for (const auto appearance : {Appearance::light, Appearance::dark}) {
        const QImage first = render(appearance);
        const QImage second = render(appearance);
        EXPECT_EQ(first, second) << "rendering must not depend on anything but the appearance";
        EXPECT_EQ(first.pixelColor(10, 600), Look::sidebar(appearance));
        EXPECT_EQ(first.pixelColor(900, 20), Look::palette(appearance).color(QPalette::Window));
        const QString name = appearance == Appearance::light ? "main-window-light.png" : "main-window-dark.png";
        ASSERT_TRUE(first.save(picturePath(name)));
    }
    EXPECT_NE(render(Appearance::light), render(Appearance::dark));
}

TEST(Routes, IdentifiersRoundTripAndShortcutsAreDistinct)
{
    QStringList shortcuts;
    for (const auto route : allRoutes) {
        EXPECT_EQ(routeFromIdentifier(identifier(route)), route);
        shortcuts << QString::fromStdString(shortcut(route));
    }
    shortcuts.removeDuplicates();
    EXPECT_EQ(shortcuts.size(), 10);
    EXPECT_EQ(identifier(Route::power), "power");
    EXPECT_EQ(title(Route::power), "Power & Heat");
    EXPECT_FALSE(routeFromIdentifier("settings"));
}
