#include "snapshot/SnapshotMode.h"

#include "Appearance.h"
#include "MainWindow.h"
#include "VexelCommands.h"
#include "actions/FakeActions.h"
#include "model/AppModel.h"
#include "panel/MenuDropdown.h"
#include "panel/MenuGlyph.h"
#include "panel/MenuReading.h"
#include "settings/SettingsWindow.h"
#include "snapshot/DemoHistoryFill.h"
#include "synth/DemoWorld.h"
#include "texts/PseudoLocale.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QScrollBar>

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <array>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <optional>
#include <unistd.h>

namespace vexel {

namespace {

// Lets queued results arrive until the model's tick in flight is back.
void settle(AppModel& model)
{
    while (model.working())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
}

// The demo world's model in a data folder of its own: nothing of the user's is read or written.
std::unique_ptr<AppModel> demoModel(DemoWorld& world, const std::filesystem::path& folder, Platform platform)
{
    const VexelPaths paths(folder);
    return std::make_unique<AppModel>(AppModel::Setup{paths,
        [&world, paths] {
            std::optional<Sentence> error;
            auto sampler = std::make_unique<Sampler>(world.monitor(), Sampler::openStore(paths, error), paths);
            // Each tick reads the world two seconds on.
            sampler->beforeSample = [&world](double) { world.advance(2); };
            return sampler;
        },
        std::make_unique<FakeActions>(), [&world] { return world.now(); }, 501, 0, false, platform, world.home(),
        platform == Platform::macOS ? "/Applications/Vexel.app/Contents/MacOS" : "/usr/bin"});
}

// The tallest a page's picture grows to show all of it.
constexpr int tallest = 4000;

// Grows the window until nothing on `page` scrolls, so that its picture
// shows the whole page; gives back the size it had.
QSize showWhole(QWidget& window, QWidget& page)
{
    const QSize was = window.size();
    for (int pass = 0; pass < 4; ++pass) {
        (void)picture(window); // lets the layouts settle at this size
        int hidden = 0;
        for (const auto* area : page.findChildren<QAbstractScrollArea*>())
            if (area->isVisible())
                hidden = std::max(hidden, area->verticalScrollBar()->maximum());
        if (hidden == 0 || window.height() >= tallest)
            break;
        window.resize(window.width(), std::min(tallest, window.height() + hidden));
    }
    return was;
}

// Pictures that could not be written; any makes the run a failure.
int unwrittenPictures = 0;

void saveImage(const QImage& image, const std::filesystem::path& file)
{
    if (image.save(QString::fromStdString(file.string())))
        return;
    std::cerr << "Couldn't write " << file.string() << "\n";
    ++unwrittenPictures;
}

void save(QWidget& window, const SnapshotOptions& options, const std::string& name)
{
    if (options.wants(name))
        saveImage(picture(window).toImage(), options.folder / name);
}

// Why no picture can be written in `folder`, found before a minute is spent drawing them.
std::optional<std::string> unwritable(const std::filesystem::path& folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        return error.message();
    const auto probe = folder / ".vexel-snapshot-probe";
    const int fd = ::open(probe.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0)
        return std::strerror(errno);
    ::close(fd);
    std::filesystem::remove(probe, error);
    return std::nullopt;
}

// The staged states of the Apps page: an app selected, a search that finds nothing.
void writeAppsStates(MainWindow& window, AppModel& model, const SnapshotOptions& options, const std::string& suffix)
{
    window.showRoute(Route::apps);
    if (const auto* iterm = model.frame() ? model.frame()->app("iTerm") : nullptr) {
        model.selectApp(iterm->id);
        save(window, options, "apps-selected-iterm-" + suffix);
        model.selectApp(std::nullopt);
    }
    model.setAppSearch("no such app");
    save(window, options, "apps-search-empty-" + suffix);
    model.setAppSearch("");
}

// The Overview after a night away: the spikes since the user was last here.
void writeAway(MainWindow& window, AppModel& model, const SnapshotOptions& options, const std::string& suffix)
{
    // The spikes come from the sampler's thread: the picture waits for them.
    QEventLoop loop;
    bool arrived = false;
    QObject::connect(&model, &AppModel::changed, &loop, [&loop, &arrived](unsigned what) {
        arrived = arrived || (what & AppModel::awayChanged) != 0;
        if (arrived)
            loop.quit();
    });
    model.lookBackTo(model.frame() ? model.frame()->time - 16 * 3600 : 0);
    if (!arrived)
        loop.exec();
    window.showRoute(Route::overview);
    save(window, options, "overview-away-" + suffix);
    model.dismissAway();
}

// The panel's items side by side at twice their size, on a dark panel and
// on a light one, in the settings' order, every reading switched on.
void writePanelStrip(const AppModel& model, const SnapshotOptions& options)
{
    if (!options.wants("menubar-items.png"))
        return;
    constexpr int scale = 2;
    constexpr int gap = 8;
    const auto& items = model.settings().menuItems;
    const int slot = MenuGlyph::side + gap;
    QImage strip(static_cast<int>(items.size()) * slot * scale + gap * scale, 2 * slot * scale, QImage::Format_ARGB32);
    QPainter painter(&strip);
    const std::array<std::pair<Appearance, QColor>, 2> panels{
        {{Appearance::dark, QColor(0x24, 0x24, 0x26)}, {Appearance::light, QColor(0xf0, 0xf0, 0xf2)}}};
    for (size_t row = 0; row < panels.size(); ++row) {
        const auto& [look, colour] = panels.at(row);
        const int top = static_cast<int>(row) * slot * scale;
        painter.fillRect(0, top, strip.width(), slot * scale, colour);
        for (size_t i = 0; i < items.size(); ++i) {
            const QImage glyph = MenuGlyph::image(menuReading(model, items[i]), look, scale);
            painter.drawImage(QPoint((gap + static_cast<int>(i) * slot) * scale, top + gap / 2 * scale), glyph);
        }
    }
    painter.end();
    saveImage(strip, options.folder / "menubar-items.png");
}

// Each reading's dropdown, named "dropdown-cpu-light.png" (with `infix`
// "strained-": "dropdown-cpu-strained-light.png").
void writeDropdowns(const AppModel& model, const SnapshotOptions& options, const std::string& infix)
{
    for (const auto appearance : {Appearance::light, Appearance::dark}) {
        const std::string suffix = appearance == Appearance::light ? "light.png" : "dark.png";
        for (const auto kind : allMenuItemKinds) {
            const std::string name = "dropdown-" + rawValue(kind) + "-" + infix + suffix;
            if (!options.wants(name))
                continue;
            QApplication::setPalette(Look::palette(appearance));
            MenuDropdown dropdown(model, kind, {[] {}, [] {}, [] {}});
            dropdown.setWindowFlags(Qt::Widget); // a picture of it, not a popup on a screen
            dropdown.show();
            save(dropdown, options, name);
        }
    }
}

// Each settings tab, with the demo Mac's places.
void writeSettings(AppModel& model, const SnapshotOptions& options, const std::string& suffix)
{
    const bool mac = options.platform == Platform::macOS;
    SettingsWindow settings({mac ? "/Applications/Vexel.app/Contents/MacOS/vexel" : "/usr/bin/vexel",
        mac ? "/Users/alex" : "/home/alex", [] { return std::nullopt; }});
    settings.bind(model);
    settings.show();
    const std::array<std::pair<SettingsWindow::Tab, const char*>, 5> tabs{{{SettingsWindow::Tab::general, "general"},
        {SettingsWindow::Tab::panel, "panel"}, {SettingsWindow::Tab::alerts, "alerts"},
        {SettingsWindow::Tab::history, "history"}, {SettingsWindow::Tab::developer, "developer"}}};
    for (const auto& [tab, name] : tabs) {
        settings.showTab(tab);
        save(settings, options, std::string("settings-") + name + "-" + suffix);
    }
}

// The confirmation of a force quit, on the app with the most helpers.
void writeForceQuit(MainWindow& window, AppModel& model, const SnapshotOptions& options, const std::string& name)
{
    const auto apps = model.apps(AppSort::memory, 100);
    const auto busiest = std::max_element(apps.begin(), apps.end(), [](const AppGroup& a, const AppGroup& b) {
        return (a.kind == AppKind::app ? a.processes.size() : 0) < (b.kind == AppKind::app ? b.processes.size() : 0);
    });
    if (busiest == apps.end())
        return;
    window.showRoute(Route::overview);
    model.actions().requestQuit(*busiest, true);
    save(window, options, name);
    model.cancelPending();
}

// The pictures of the model as it stands, in light and dark, named with `prefix`.
void writePictures(AppModel& model, const SnapshotOptions& options, const std::string& prefix)
{
    for (const auto appearance : {Appearance::light, Appearance::dark}) {
        const std::string suffix = appearance == Appearance::light ? "light.png" : "dark.png";
        // Pictures are drawn in Vexel's own palettes, the same on every machine.
        QApplication::setPalette(Look::palette(appearance));
        MainWindow window;
        window.bind(model);
        const VexelCommands commands(window, model, [] {});
        window.show();
        for (const auto route : allRoutes) {
            if (!options.wants(prefix + identifier(route) + "-" + suffix))
                continue;
            window.showRoute(route);
            const QSize was = showWhole(window, *window.page(route));
            save(window, options, prefix + identifier(route) + "-" + suffix);
            window.resize(was);
        }
        if (prefix.empty() && options.wantsAny("apps-"))
            writeAppsStates(window, model, options, suffix);
        if (prefix.empty() && options.wants("overview-away-" + suffix))
            writeAway(window, model, options, suffix);
        if (prefix.empty() && options.wantsAny("settings-"))
            writeSettings(model, options, suffix);
        if (options.wants(prefix + "confirm-forcequit-" + suffix))
            writeForceQuit(window, model, options, prefix + "confirm-forcequit-" + suffix);
        window.showRoute(Route::overview);
    }
}

} // namespace

QPixmap picture(QWidget& window)
{
    // Layouts settle and new widgets show in posted events (a wrapped label's height, a scroll
    // area's extent); a picture taken before them shows text clipped.
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::sendPostedEvents();
    return window.grab();
}

void strainDemoWorld(DemoWorld& world, AppModel& model)
{
    settle(model); // the world is the sampler thread's while a tick runs
    world.strained = true;
    // Enough ticks for the ring and the rates to show the load.
    for (int tick = 0; tick < 3; ++tick) {
        model.refresh(tick == 0);
        settle(model);
    }
    model.loadHistorySync();
}

std::optional<SnapshotOptions> SnapshotOptions::from(
    const std::function<std::optional<std::string>(const char*)>& getenv)
{
    const auto folder = getenv("VEXEL_SNAPSHOT_DIR");
    if (!folder || folder->empty())
        return std::nullopt;
    SnapshotOptions options;
    options.folder = *folder;
    std::string word;
    for (const char c : getenv("VEXEL_SNAPSHOT_ONLY").value_or("") + ",") {
        if (c == ',' || c == ' ' || c == '\t') {
            if (!word.empty())
                options.only.insert(word);
            word.clear();
        } else {
            word += c;
        }
    }
    const auto stay = getenv("VEXEL_SNAPSHOT_STAY");
    options.stay = stay && !stay->empty() && *stay != "0";
    options.pseudoLocale = getenv("VEXEL_SNAPSHOT_LOCALE") == std::optional<std::string>("pseudo");
    if (getenv("VEXEL_SNAPSHOT_PLATFORM") == std::optional<std::string>("linux"))
        options.platform = Platform::linux;
    return options;
}

bool SnapshotOptions::wantsAny(const std::string& prefix) const
{
    if (only.empty())
        return true;
    for (const auto& wanted : only)
        if (wanted.starts_with(prefix) || prefix.starts_with(wanted))
            return true;
    return false;
}

bool SnapshotOptions::wants(const std::string& name) const
{
    if (only.empty())
        return true;
    for (const auto& wanted : only)
        if (name == wanted || name.starts_with(wanted))
            return true;
    return false;
}

int runSnapshotMode(const SnapshotOptions& options)
{
    // The house style, font and palettes: pictures look the same on every machine.
    QApplication::setStyle(QStringLiteral("Fusion"));
    Look::installFont();
    // Vexel's own symbols in the sidebar, whatever icon theme this machine has.
    QIcon::setThemeSearchPaths({});
    QIcon::setFallbackSearchPaths({});
    PseudoLocale pseudo;
    if (options.pseudoLocale)
        QCoreApplication::installTranslator(&pseudo);
    if (const auto why = unwritable(options.folder)) {
        std::cerr << "Couldn't write pictures in " << options.folder.string() << ": " << *why << "\n";
        return 1;
    }
    QTemporaryDir data;
    if (!data.isValid()) {
        std::cerr << "Couldn't make a temporary folder for the demo world's history: "
                  << data.errorString().toStdString() << "\n";
        return 1;
    }
    DemoWorld world;
    const VexelPaths paths(data.path().toStdString());
    auto model = demoModel(world, paths.dir, options.platform);
    for (int tick = 0; tick < 3; ++tick) {
        model->refresh(tick == 0);
        settle(*model);
    }
    // Weeks of history, so that Today, the week strip and History have
    // something to show; written before the recorder first thins its own.
    fillDemoHistory(paths, *model->frame(), model->zone, model->apps(AppSort::cpu, 6), model->cores());
    // A few minutes of readings, so that the live traces have their minutes to mark.
    for (size_t tick = 3; tick < RecentRing::capacity; ++tick) {
        model->refresh(false);
        settle(*model);
    }
    model->refresh(true);
    settle(*model);
    model->loadHistorySync();
    writePictures(*model, options, "");
    writePanelStrip(*model, options);
    writeDropdowns(*model, options, "");
    if (options.wantsAny("strained-") || options.wantsAny("dropdown-")) {
        strainDemoWorld(world, *model);
        writePictures(*model, options, "strained-");
        writeDropdowns(*model, options, "strained-");
    }
    if (!options.stay)
        return unwrittenPictures == 0 ? 0 : 1;
    QApplication::setPalette(Look::palette(Appearance::light));
    MainWindow window;
    window.bind(*model);
    window.show();
    return QApplication::exec();
}

} // namespace vexel
