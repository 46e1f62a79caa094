// The real vexel-app in a desktop session with a real status area: closing
// its window while its readings are in the panel hides it and Vexel goes on;
// a second launch raises the first and ends; an item's "Quit Vexel" ends it;
// a panel that starts after Vexel gets its items, and a panel that goes away
// sends the window back to the taskbar; the window is dark or light as the
// desktop's portal says, and follows it when it changes.

#include "io/Files.h"
#include "support/ChildProcess.h"
#include "support/FakePortal.h"
#include "support/RunTool.h"
#include "support/StatusArea.h"
#include "support/TempFolder.h"
#include "support/XWindows.h"

#include <QImage>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

using namespace vexel::testing;

namespace {

const std::string vexelApp = std::string(VEXEL_BINARY_DIR) + "/src/vexel-app";
constexpr int panelHeight = 30;

// The status area: the watcher, then the panel that hosts the items.
struct StatusArea {
    ChildProcess watcher{{"/usr/bin/status-notifier-watcher"}};
    std::optional<ChildProcess> host;

    StatusArea()
    {
        EXPECT_TRUE(waitFor(watcherRunning));
        host.emplace(std::vector<std::string>{
            "/usr/bin/gtk-sni-tray-standalone", "--top", "--beginning", "--size", std::to_string(panelHeight)});
        EXPECT_TRUE(waitFor(hostRegistered));
    }
    ~StatusArea()
    {
        host.reset();
        (void)watcher.stop(SIGTERM);
        EXPECT_TRUE(waitFor([] { return !watcherRunning(); }));
    }
    StatusArea(const StatusArea&) = delete;
    StatusArea& operator=(const StatusArea&) = delete;
};

// vexel-app on a data folder of the test's own, seen from outside.
struct Vexel {
    explicit Vexel(const std::filesystem::path& data)
        : process(launch(data))
    {
        ::unsetenv("VEXEL_DATA_DIR");
    }

    [[nodiscard]] pid_t pid() const { return process.pid(); }

    ChildProcess process;

private:
    static std::vector<std::string> launch(const std::filesystem::path& data)
    {
        std::ofstream(data / "settings.json") << R"({"sampleSeconds": 60})";
        ::setenv("VEXEL_DATA_DIR", data.c_str(), 1);
        return {vexelApp};
    }
};

// The window as a user sees it, photographed from the screen into `file`.
QImage photograph(uint32_t window, const std::filesystem::path& file)
{
    const auto run = runTool({"import", "-window", std::to_string(window), file.string()});
    return run.status == 0 ? QImage(QString::fromStdString(file.string())) : QImage();
}

bool exitedWell(std::optional<int> status)
{
    return status && WIFEXITED(*status) && WEXITSTATUS(*status) == 0;
}

} // namespace

TEST(DesktopSession, ClosingTheWindowKeepsVexelWhichIsOneAndQuitsFromItsItems)
{
    const StatusArea area;
    TempFolder data("vexel-desktop");
    Vexel app(data.path());
    XDisplay display;
    ASSERT_TRUE(display.connected());
    ASSERT_TRUE(waitFor([&] { return display.shows(app.pid(), "Vexel"); }));
    ASSERT_TRUE(waitFor([] { return registeredItems().size() == 3; })) << registeredItems().join(' ').toStdString();

    // The close button hides the window: the items in the panel lead back.
    display.close(display.windowsOf(app.pid(), "Vexel").front());
    ASSERT_TRUE(waitFor([&] { return !display.shows(app.pid(), "Vexel"); }));

    // A second launch finds Vexel running, raises its window and ends.
    ChildProcess second({vexelApp});
    EXPECT_TRUE(exitedWell(second.waitUpTo(15000)));
    EXPECT_TRUE(waitFor([&] { return display.shows(app.pid(), "Vexel"); })) << "the first Vexel came back";
    EXPECT_EQ(registeredItems().size(), 3) << "one Vexel's items, not two";

    // "Quit Vexel" in an item's menu ends it the ordinary way.
    ASSERT_TRUE(clickMenuEntry(registeredItems().front(), QStringLiteral("Quit Vexel")));
    EXPECT_TRUE(exitedWell(app.process.waitUpTo(15000)));
    const auto settings = vexel::Files::read((data.path() / "settings.json").string()).value_or("");
    EXPECT_NE(settings.find("\"lastSeen\""), std::string::npos) << settings;
    EXPECT_TRUE(waitFor([] { return registeredItems().isEmpty(); }));
}

TEST(DesktopSession, APanelThatComesLateGetsTheItemsAndOneThatGoesSendsTheWindowBack)
{
    TempFolder data("vexel-desktop");
    Vexel app(data.path());
    XDisplay display;
    ASSERT_TRUE(waitFor([&] { return display.shows(app.pid(), "Vexel"); }));
    {
        // The panel starts after Vexel, as it may at login.
        const StatusArea area;
        ASSERT_TRUE(waitFor([] { return registeredItems().size() == 3; })) << registeredItems().join(' ').toStdString();
        // With its readings in the panel now, closing hides the window.
        display.close(display.windowsOf(app.pid(), "Vexel").front());
        ASSERT_TRUE(waitFor([&] { return !display.shows(app.pid(), "Vexel"); }));
    }
    // The panel went away: the window is back in the taskbar, the way back,
    // under the desktop entry that names its class, with Vexel's icon.
    EXPECT_TRUE(waitFor([&] { return display.shows(app.pid(), "Vexel"); }));
    const auto window = display.windowsOf(app.pid(), "Vexel").front();
    const auto entry = vexel::Files::read(std::string(VEXEL_SOURCE_DIR) + "/packaging/dev.vexel.Vexel.desktop.in");
    EXPECT_NE(entry.value_or("").find("\nStartupWMClass=" + display.windowClass(window) + "\n"), std::string::npos)
        << display.windowClass(window);
    EXPECT_TRUE(display.hasIcon(window));
    // The entry's Quit action ends it.
    ChildProcess quit({vexelApp, "--quit"});
    EXPECT_TRUE(exitedWell(quit.waitUpTo(15000)));
    EXPECT_TRUE(exitedWell(app.process.waitUpTo(15000)));
}

TEST(DesktopSession, TheWindowIsDarkOrLightAsTheDesktopSaysWhileItRuns)
{
    FakePortal portal(1); // the desktop prefers dark
    ASSERT_TRUE(portal.serving());
    TempFolder data("vexel-desktop");
    Vexel app(data.path());
    XDisplay display;
    ASSERT_TRUE(waitFor([&] { return display.shows(app.pid(), "Vexel"); }));
    const auto window = display.windowsOf(app.pid(), "Vexel").front();
    // The pictures stay in the build for a reviewer to look at.
    const auto pictures = std::filesystem::path(VEXEL_BINARY_DIR) / "pictures";
    std::filesystem::create_directories(pictures);
    const auto pageLightness = [&](const std::string& name) {
        const QImage photo = photograph(window, pictures / name);
        return photo.isNull() ? -1 : photo.pixelColor(photo.width() - 30, photo.height() - 30).lightness();
    };
    const auto dark = [&] {
        const int lightness = pageLightness("live-dark.png");
        return lightness >= 0 && lightness < 80;
    };
    EXPECT_TRUE(waitFor(dark));
    // The user turns dark mode off while Vexel runs, and on again.
    portal.setScheme(2);
    EXPECT_TRUE(waitFor([&] { return pageLightness("live-light.png") > 200; }));
    portal.setScheme(1);
    EXPECT_TRUE(waitFor(dark));
    EXPECT_TRUE(exitedWell(app.process.stop(SIGTERM)));
}
