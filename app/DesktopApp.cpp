#include "DesktopApp.h"

#include "Appearance.h"
#include "BackgroundWork.h"
#include "MainWindow.h"
#include "QuitVexel.h"
#include "SingleInstance.h"
#include "SystemLook.h"
#include "VexelCommands.h"
#include "WindowKeeper.h"
#include "actions/LiveActions.h"
#include "model/AppModel.h"
#include "panel/MenuBarController.h"
#include "panel/MenuGlyph.h"
#include "panel/PanelHost.h"
#include "platform/Environment.h"
#include "processes/Shell.h"
#include "recording/StopSignals.h"
#include "sampling/RecorderLock.h"
#include "settings/SettingsWindow.h"
#include "snapshot/SnapshotMode.h"
#include "texts/Translations.h"

#include <QApplication>
#include <QIcon>
#include <QSocketNotifier>
#include <QStyleHints>

#include <csignal>
#include <iostream>
#include <sys/signalfd.h>
#include <unistd.h>

#include <optional>
#include <string_view>

namespace vexel {

namespace {

// The panel's look as far as the desktop's name tells it (GNOME's top bar
// is dark in both of its styles), else the system's appearance.
Appearance panelAppearance(const SystemLook& look)
{
    const PanelSettings named{environmentVariable("XDG_CURRENT_DESKTOP").value_or(""), {}, {}, {}};
    return MenuGlyph::panelAppearance(PanelShades::of(named), look.appearance());
}

// The panel's shade from the desktop's settings files, read off the window's
// thread at start and again whenever the system turns light or dark.
void followPanelShade(MenuBarController& panel, const SystemLook& look)
{
    const auto read = [&panel, &look] {
        inBackground<PanelShade>(
            &panel, [] { return PanelShades::of(PanelSettings::live()); },
            [&panel, &look](
                PanelShade shade) { panel.setPanel(MenuGlyph::panelAppearance(shade, look.appearance())); });
    };
    read();
    QObject::connect(&look, &SystemLook::changed, &panel, read);
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
        quitVexel();
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

// Vexel's icon from the icon theme where it is installed, else the one built in.
QIcon vexelIcon()
{
    QIcon builtIn;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256})
        builtIn.addFile(QStringLiteral(":/icons/dev.vexel.Vexel-%1.png").arg(size), QSize(size, size));
    return QIcon::fromTheme(QStringLiteral("dev.vexel.Vexel"), builtIn);
}

bool hasArgument(int argc, char** argv, std::string_view wanted)
{
    for (int i = 1; i < argc; ++i)
        if (argv[i] == wanted)
            return true;
    return false;
}

} // namespace

namespace {

// The window, the settings, the panel's items and the model, until Vexel is quit.
int runWindow(SingleInstance& instance, bool hidden)
{
    SystemLook look(QDBusConnection::sessionBus());
    look.start();
    const auto paths = VexelPaths::standard();
    AppModel model(liveSetup(paths));
    // What of the settings could not be used goes to the journal too.
    for (const auto& notice : model.notices())
        std::cerr << notice << "\n";
    MainWindow window;
    window.bind(model);
    SettingsWindow settings(commandLinePlaces());
    settings.bind(model);
    const auto showSettings = [&settings](std::optional<SettingsWindow::Tab> tab) {
        if (tab)
            settings.showTab(*tab);
        settings.show();
        settings.raise();
        settings.activateWindow();
    };
    VexelCommands commands(window, model, [showSettings] { showSettings(std::nullopt); });
    WindowKeeper keeper(window, model);
    const auto showWindow = [&window] {
        window.showNormal();
        window.raise();
        window.activateWindow();
    };
    MenuBarController panel(model, panelAppearance(look),
        {showWindow, [showSettings] { showSettings(SettingsWindow::Tab::panel); }, quitVexel});
    followPanelShade(panel, look);
    // The panel's status area is followed as it comes and goes; without
    // items in it, the window stays the way back.
    PanelHost host;
    const auto follow = [&keeper, &panel, &host] {
        keeper.setPanel({host.present(), host.present() && !panel.order().empty()});
    };
    QObject::connect(&host, &PanelHost::changed, &keeper, [&panel, follow](bool present) {
        if (present)
            panel.start();
        else
            panel.stop();
        follow();
    });
    QObject::connect(&model, &AppModel::changed, &keeper, [follow](unsigned what) {
        if (what & AppModel::settingsChanged)
            follow();
    });
    // Another launch asks for the window; the desktop's Quit action ends Vexel.
    QObject::connect(&instance, &SingleInstance::activated, &window, [showWindow](const QString& token) {
        if (!token.isEmpty())
            qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
        showWindow();
    });
    QObject::connect(&instance, &SingleInstance::quitRequested, &window, quitVexel);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &model, &AppModel::shutdown);
    model.start();
    host.start();
    keeper.showAtStart(hidden);
    return QApplication::exec();
}

} // namespace

int runDesktopApp(int& argc, char** argv)
{
    // Before any thread starts, so that every thread leaves them to the signalfd.
    (void)blockStopSignals();
    // Pictures need no display: offscreen, unless the app is to stay open.
    const auto snapshot = SnapshotOptions::from(environmentVariable);
    if (snapshot && !snapshot->stay)
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    quitOnStopSignals(app);
    // With items in the panel, closing the window only hides it: Vexel goes on until it is quit.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(QStringLiteral("Vexel"));
    QApplication::setDesktopFileName(QStringLiteral("dev.vexel.Vexel"));
    QApplication::setWindowIcon(vexelIcon());
    Translations::installEnglish();
    if (snapshot)
        return runSnapshotMode(*snapshot);
    // In the user's language where Vexel has been translated into it.
    Translations::install(Translations::folder(), QLocale::system());
    // The desktop entry's Quit action: the running Vexel quits, and nothing starts.
    if (hasArgument(argc, argv, "--quit"))
        return SingleInstance::quitRunning() ? 0 : 1;
    const bool hidden = hasArgument(argc, argv, "--hidden");
    SingleInstance instance;
    if (instance.claim() == SingleInstance::Claim::another) {
        // At login (--hidden) the Vexel already running is all there is to do.
        if (hidden || SingleInstance::activateRunning())
            return 0;
        std::cerr << "Vexel is already running in this session but didn't answer; it may be busy or stuck.\n";
        return 1;
    }
    return runWindow(instance, hidden);
}

} // namespace vexel
