// The real vexel-app in a desktop session with a real status area: closing
// its window while its readings are in the panel hides it and Vexel goes on;
// a second launch raises the first and ends; an item's "Quit Vexel" ends it;
// under a Wayland compositor (Weston, headless) the window shows, an item's
// dropdown opens and the desktop entry's Quit action ends it.

#include "io/Files.h"
#include "platform/Environment.h"
#include "support/ChildProcess.h"
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

// Weston in headless mode, drawing with pixman so that the screen can be
// photographed, on a socket of its own; Wayland clients started while it
// lives find it through the environment.
struct Weston {
    TempFolder runtime{"vexel-wayland"};
    std::optional<std::string> runtimeBefore = vexel::environmentVariable("XDG_RUNTIME_DIR");
    std::optional<ChildProcess> compositor;

    Weston()
    {
        std::filesystem::permissions(runtime.path(), std::filesystem::perms::owner_all);
        ::setenv("XDG_RUNTIME_DIR", runtime.path().c_str(), 1);
        compositor.emplace(std::vector<std::string>{"weston", "--backend=headless-backend.so", "--use-pixman",
            "--socket=vexel-test", "--width=1024", "--height=768", "--debug", "--idle-time=0"});
        EXPECT_TRUE(waitFor([this] { return std::filesystem::exists(runtime.path() / "vexel-test"); }));
        ::setenv("WAYLAND_DISPLAY", "vexel-test", 1);
    }
    ~Weston()
    {
        compositor.reset();
        ::unsetenv("WAYLAND_DISPLAY");
        if (runtimeBefore)
            ::setenv("XDG_RUNTIME_DIR", runtimeBefore->c_str(), 1);
        else
            ::unsetenv("XDG_RUNTIME_DIR");
    }
    Weston(const Weston&) = delete;
    Weston& operator=(const Weston&) = delete;

    // The screen as the compositor shows it, kept as `name` in build/pictures.
    [[nodiscard]] QImage photograph(const std::string& name) const
    {
        ChildProcess shooter({"weston-screenshooter"}, {runtime.path()});
        (void)shooter.waitUpTo(10000);
        const auto pictures = std::filesystem::path(VEXEL_BINARY_DIR) / "pictures";
        std::filesystem::create_directories(pictures);
        QImage photo;
        for (const auto& entry : std::filesystem::directory_iterator(runtime.path())) {
            if (entry.path().extension() != ".png")
                continue;
            std::filesystem::rename(entry.path(), pictures / name);
            photo.load(QString::fromStdString((pictures / name).string()));
        }
        return photo.convertToFormat(QImage::Format_RGB32);
    }
};

// How many pixels differ between two photographs of the same screen.
int difference(const QImage& one, const QImage& other)
{
    if (one.size() != other.size())
        return -1;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        const auto* a = reinterpret_cast<const QRgb*>(one.constScanLine(y));
        const auto* b = reinterpret_cast<const QRgb*>(other.constScanLine(y));
        for (int x = 0; x < one.width(); ++x)
            count += a[x] != b[x] ? 1 : 0;
    }
    return count;
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

    // In the taskbar under the desktop entry that names its class, with Vexel's icon.
    const auto window = display.windowsOf(app.pid(), "Vexel").front();
    const auto entry = vexel::Files::read(std::string(VEXEL_SOURCE_DIR) + "/packaging/dev.vexel.Vexel.desktop.in");
    EXPECT_NE(entry.value_or("").find("\nStartupWMClass=" + display.windowClass(window) + "\n"), std::string::npos);
    EXPECT_TRUE(display.hasIcon(window));

    // The close button hides the window: the items in the panel lead back.
    display.close(window);
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

TEST(DesktopSession, UnderWaylandTheWindowShowsAndAnItemsDropdownOpens)
{
    const StatusArea area; // on the X display: the items travel over D-Bus either way
    const Weston weston;
    const QImage desktop = weston.photograph("wayland-desktop.png");
    ASSERT_FALSE(desktop.isNull());
    TempFolder data("vexel-desktop");
    std::ofstream(data.path() / "settings.json") << R"({"sampleSeconds": 60})";
    ::setenv("VEXEL_DATA_DIR", data.path().c_str(), 1);
    ::setenv("QT_QPA_PLATFORM", "wayland", 1);
    ::setenv("QT_LOGGING_RULES", "vexel.panel.info=true", 1);
    ChildProcess app({vexelApp}, {{}, true, true});
    ::unsetenv("QT_LOGGING_RULES");
    ::unsetenv("QT_QPA_PLATFORM");
    ::unsetenv("VEXEL_DATA_DIR");
    ASSERT_TRUE(waitFor([] { return registeredItems().size() == 3; }));
    // The window: a large part of the screen changed, and settled once the
    // first reading is in (two photographs a moment apart hardly differ).
    QImage window = weston.photograph("wayland-window.png");
    EXPECT_TRUE(waitFor([&] {
        const QImage next = weston.photograph("wayland-window.png");
        const bool settled = difference(desktop, next) > 200000 && difference(window, next) < 10000;
        window = next;
        return settled;
    })) << difference(desktop, window);
    // A click on an item (the panel's Activate) opens its dropdown as a
    // window of its own that the compositor places, and it shows.
    auto activate = QDBusMessage::createMethodCall(registeredItems().front(), QStringLiteral("/StatusNotifierItem"),
        QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("Activate"));
    activate << 10 << 10;
    ask(activate);
    std::string line;
    do
        line = app.readLine();
    while (!line.empty() && line.find("dropdown") == std::string::npos);
    EXPECT_NE(line.find("opens as a window the compositor places"), std::string::npos) << line;
    QImage dropdown;
    EXPECT_TRUE(waitFor([&] {
        dropdown = weston.photograph("wayland-dropdown.png");
        return difference(window, dropdown) > 25000;
    })) << difference(window, dropdown);
    // The desktop entry's Quit action ends it. (The stop signals are one set,
    // SIGHUP among them, that the headless recorder's test sends.)
    ChildProcess quit({vexelApp, "--quit"});
    EXPECT_TRUE(exitedWell(quit.waitUpTo(15000)));
    EXPECT_TRUE(exitedWell(app.waitUpTo(15000)));
}
