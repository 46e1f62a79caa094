#include "MainWindow.h"
#include "pages/OverviewPage.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace vexel;

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
