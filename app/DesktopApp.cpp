#include "DesktopApp.h"

#include "Appearance.h"
#include "MainWindow.h"
#include "StopSignals.h"
#include "VexelCommands.h"
#include "WindowKeeper.h"
#include "actions/LiveActions.h"
#include "model/AppModel.h"
#include "panel/MenuBarController.h"
#include "platform/Environment.h"
#include "processes/Shell.h"
#include "recorder/HeadlessRecorder.h"
#include "recorder/RecorderLock.h"
#include "settings/SettingsWindow.h"
#include "snapshot/SnapshotMode.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QStyleHints>
#include <QSystemTrayIcon>

#include <csignal>
#include <iostream>
#include <sys/signalfd.h>
#include <unistd.h>

#include <string_view>

namespace vexel {

namespace {

Appearance systemAppearance()
{
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Window).lightness() < 128 ? Appearance::dark : Appearance::light;
}

// The panel's look: GNOME's top bar is dark in both of its styles; other
// desktops' panels follow the system's appearance.
Appearance panelAppearance()
{
    const auto desktop = environmentVariable("XDG_CURRENT_DESKTOP").value_or("");
    if (desktop.find("GNOME") != std::string::npos)
        return Appearance::dark;
    return systemAppearance();
}

// SIGTERM (the session ending, systemd stopping it) and Ctrl-C quit the app
// the ordinary way, so that the waiting minute is written and lastSeen saved.
void quitOnStopSignals(QCoreApplication& app)
{
    const sigset_t stops = stopSignals();
    const int fd = ::signalfd(-1, &stops, SFD_CLOEXEC | SFD_NONBLOCK);
    if (fd < 0)
        return;
    auto* notifier = new QSocketNotifier(fd, QSocketNotifier::Read, &app);
    QObject::connect(notifier, &QSocketNotifier::activated, &app, [fd] {
        signalfd_siginfo info{};
        while (::read(fd, &info, sizeof info) == static_cast<ssize_t>(sizeof info)) { }
        // exit, not quit: quit first asks the windows to close, and the
        // window only minimises while it is the way back.
        QCoreApplication::exit(0);
    });
}

// Where the Developer settings find the vexel command and Claude Code.
DeveloperTab::Places commandLinePlaces()
{
    return {QCoreApplication::applicationDirPath().toStdString() + "/vexel", homeFolder(),
        [] { return Shell::find("claude"); }};
}

AppModel::Setup liveSetup(const VexelPaths& paths)
{
    return {paths,
        [paths] {
            auto sampler = std::make_unique<Sampler>(Monitor::live(), nullptr, paths);
            // Only one process records: beside a running recorder this window
            // reads its history, and records once the recorder stops.
            sampler->recordUnder(std::make_unique<RecorderLock>(paths.dir));
            return sampler;
        },
        std::make_unique<LiveActions>(), currentTime, static_cast<uint32_t>(::geteuid()),
        static_cast<int32_t>(::getpid()), true};
}

bool hasArgument(int argc, char** argv, std::string_view wanted)
{
    for (int i = 1; i < argc; ++i)
        if (argv[i] == wanted)
            return true;
    return false;
}

} // namespace

int runDesktopApp(int& argc, char** argv)
{
    // Recording without a desktop needs no Qt at all.
    if (hasArgument(argc, argv, "--headless"))
        return runHeadlessRecorder();
    // Before any thread starts, so that every thread leaves them to the signalfd.
    (void)blockStopSignals();
    // Pictures need no display: offscreen, unless the app is to stay open.
    const auto snapshot = SnapshotOptions::from(environmentVariable);
    if (snapshot && !snapshot->stay)
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    quitOnStopSignals(app);
    QApplication::setApplicationName(QStringLiteral("Vexel"));
    QApplication::setDesktopFileName(QStringLiteral("dev.vexel.Vexel"));
    QApplication::setStyle(QStringLiteral("Fusion"));
    Look::installFont();
    if (snapshot)
        return runSnapshotMode(*snapshot);
    const auto paths = VexelPaths::standard();
    AppModel model(liveSetup(paths));
    // What of the settings could not be used goes to the journal too.
    for (const auto& notice : model.notices)
        std::cerr << notice << "\n";
    MainWindow window(systemAppearance());
    window.bind(model);
    SettingsWindow settings(systemAppearance(), commandLinePlaces());
    settings.bind(model);
    VexelCommands commands(window, model, [&settings] {
        settings.show();
        settings.raise();
        settings.activateWindow();
    });
    const bool host = QSystemTrayIcon::isSystemTrayAvailable();
    WindowKeeper keeper(window, model, {.host = host, .carriesReadings = false});
    const auto showWindow = [&window] {
        window.showNormal();
        window.raise();
        window.activateWindow();
    };
    MenuBarController panel(model, panelAppearance(), systemAppearance(), {showWindow, [&settings] {
                                                                               settings.showTab(
                                                                                   SettingsWindow::Tab::panel);
                                                                               settings.show();
                                                                               settings.raise();
                                                                               settings.activateWindow();
                                                                           }});
    if (host) {
        panel.start();
        // Without items in the panel, the window stays the way back.
        const auto follow = [&keeper, &panel] { keeper.setCarriesReadings(!panel.order().empty()); };
        follow();
        QObject::connect(&model, &AppModel::changed, &keeper, [follow](unsigned what) {
            if (what & AppModel::settingsChanged)
                follow();
        });
    }
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &model, &AppModel::shutdown);
    model.start();
    // At login the app starts with --hidden (the autostart entry).
    keeper.showAtStart(hasArgument(argc, argv, "--hidden"));
    return QApplication::exec();
}

} // namespace vexel
