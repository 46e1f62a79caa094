#include "model/AppModel.h"

#include "Logging.h"
#include "grouping/AppGrouper.h"
#include "grouping/linux/DesktopEntry.h"
#include "io/AtomicFile.h"
#include "model/AppSearch.h"
#include "platform/Environment.h"
#include "spikes/SpikeFinder.h"
#include "texts/PageTexts.h"
#include "texts/Vexel.h"

#include <QCoreApplication>

#include <algorithm>
#include <filesystem>
#include <limits>
#include <string_view>

namespace vexel {

namespace {

// Away this long, the window opens on what happened meanwhile.
constexpr double awayAfter = 600;

// What the page on show needs read more often than a closed window would.
Cadence::View cadenceView(bool windowVisible, Route route)
{
    Cadence::View view;
    view.windowVisible = windowVisible;
    view.showsAppNetwork = route == Route::overview || route == Route::apps || route == Route::network;
    view.showsServers = route == Route::developers;
    return view;
}

// What the user can do about a failing history, after SQLite's or the file
// system's words for it.
QString historyAdvice(const std::string& error, const std::filesystem::path& folder)
{
    const QString where = QString::fromStdString(folder.string());
    if (error.find("disk is full") != std::string::npos || error.find("No space left") != std::string::npos)
        return Vexel::tr("The disk that holds %1 is full: free some space there. Live readings go on, and the "
                         "minute waiting is written once there is room.")
            .arg(where);
    if (error.find("ermission denied") != std::string::npos || error.find("readonly") != std::string::npos
        || error.find("read-only") != std::string::npos)
        return Vexel::tr("Vexel can't write in %1: check that the folder and its files are yours and writable. "
                         "Live readings go on.")
            .arg(where);
    return Vexel::tr("Live readings go on, and Vexel tries the history again each minute.");
}

std::filesystem::path autostartFile()
{
    return std::filesystem::path(configFolder()) / "autostart" / "dev.vexel.Vexel.desktop";
}

} // namespace

AppModel::AppModel(Setup setup)
    : platform(setup.platform)
    , home(std::move(setup.home))
    , programFolder(std::move(setup.programFolder))
    , zone(setup.zone)
    , m_paths(std::move(setup.paths))
    , m_clock(std::move(setup.clock))
    , m_observesVisibility(setup.observesVisibility)
    , m_actions(std::move(setup.actions))
{
    ActionFlow::Hooks hooks{[this](ConfirmRequest request) { ask(std::move(request)); },
        [this](const Sentence& said, ActionFlow::Told told) { tell(said, told == ActionFlow::Told::failed); },
        [this] {
            // The stopped server leaves the list at the next scan, about a second on.
            QTimer::singleShot(1000, this, [this] {
                m_cadence.requestPorts();
                refresh(false);
            });
        },
        [this](double seconds, std::function<void()> work) {
            QTimer::singleShot(static_cast<int>(seconds * 1000), this, std::move(work));
        }};
    m_flow = std::make_unique<ActionFlow>(*m_actions, std::move(hooks), setup.myUID, setup.myPid);
    m_sampler = std::make_unique<SamplerThread>(std::move(setup.buildSampler));
    // The settings are read on the sampler's thread, with the sampler, before the window shows.
    m_sampler->run([this](Sampler& sampler) {
        m_settings = sampler.settingsFile().settings();
        for (const auto& message : sampler.settingsFile().messages())
            m_notices.push_back(Vexel::say(message).toStdString());
        std::error_code missing;
        m_openAtLogin = std::filesystem::exists(autostartFile(), missing);
        if (sampler.openError())
            m_openError = *sampler.openError();
    });
    setStoreError(m_openError);
    m_timer.callOnTimeout(this, [this] { refresh(false); });
    m_toastTimer.setSingleShot(true);
    m_toastTimer.setInterval(toastMilliseconds);
    m_toastTimer.callOnTimeout(this, [this] { dismissToast(); });
}

AppModel::~AppModel()
{
    m_timer.stop();
    m_sampler.reset();
}

void AppModel::start()
{
    if (!m_settings.onboarded) {
        m_firstLaunch = true;
        m_settings.onboarded = true;
        saveSettings(SettingsFile::Saving::automatic);
    }
    refresh(true);
    schedule();
}

void AppModel::schedule()
{
    m_timer.start(static_cast<int>(tickSeconds() * 1000));
}

void AppModel::setWindowVisible(bool visible)
{
    if (!m_observesVisibility || visible == m_windowVisible)
        return;
    m_windowVisible = visible;
    notify(visibilityChanged);
    if (visible) {
        prepareAway();
        refresh(true);
    } else {
        m_settings.lastSeen = m_clock();
        saveSettings(SettingsFile::Saving::automatic);
    }
    schedule();
}

void AppModel::changeSettings(const VexelSettings& changed)
{
    m_settings = changed;
    saveSettings(SettingsFile::Saving::userChange);
    notify(settingsChanged);
    schedule();
}

void AppModel::shutdown()
{
    m_timer.stop();
    m_settings.lastSeen = m_clock();
    // Written before the sampler's thread stops: its work runs in order.
    saveSettings(SettingsFile::Saving::automatic);
}

void AppModel::saveSettings(SettingsFile::Saving saving)
{
    onSampler<Paragraph>([saved = m_settings, saving](Sampler& sampler) { return sampler.saveSettings(saved, saving); },
        [this](const Paragraph& said) {
            if (!said.empty())
                tell(Vexel::say(said), true);
        });
}

void AppModel::dismissNotice(size_t index)
{
    if (index >= m_notices.size())
        return;
    m_notices.erase(m_notices.begin() + static_cast<long>(index));
    notify(noticesChanged);
}

void AppModel::setRoute(Route next)
{
    if (next == m_route)
        return;
    m_route = next;
    notify(routeChanged);
}

void AppModel::setHistoryRange(HistoryRange range)
{
    if (range == m_historyRange)
        return;
    m_historyRange = range;
    loadHistory();
}

void AppModel::refresh(bool full)
{
    if (m_busy) {
        // Ticks never overlap: a timer's tick is dropped, but a full refresh
        // (the window opening) runs as soon as this one is back, unless this
        // one is full itself.
        m_fullPending = m_fullPending || (full && !m_busyFull);
        qCDebug(samplerLog) << (full ? "full refresh waits for the tick in flight" : "tick dropped: one is in flight");
        return;
    }
    const double now = m_clock();
    const auto plan = m_cadence.plan(now, full, cadenceView(m_windowVisible, m_route), m_settings);
    m_busy = true;
    m_busyFull = full;
    onSampler<TickResult>([now, plan](Sampler& sampler) { return sampler.tick(now, plan); },
        [this](TickResult result) {
            receive(std::move(result));
            m_busy = false;
            if (std::exchange(m_fullPending, false))
                refresh(true);
        });
}

void AppModel::receive(TickResult result)
{
    unsigned what = 0;
    // A reading that failed outright leaves the last one in place.
    if (result.frame.time > 0) {
        what |= frameChanged;
        m_ring.append(RingSample::of(result.frame));
        m_cores = result.frame.system.coreCount();
        m_frame = std::move(result.frame);
    }
    if (result.servers) {
        m_servers = std::move(*result.servers);
        m_serversLoaded = true;
        what |= serversChanged;
    }
    if (result.listeners)
        m_listeners = std::move(*result.listeners);
    if (result.docker) {
        m_docker = std::move(result.docker);
        what |= dockerChanged;
    }
    if (result.today || result.week || result.todaySeries || result.historyBytes)
        what |= totalsChanged;
    if (result.today)
        m_today = result.today;
    if (result.week)
        m_week = std::move(*result.week);
    if (result.todaySeries)
        m_todaySeries = std::move(*result.todaySeries);
    if (result.historyBytes)
        m_historyBytes = result.historyBytes;
    // Each minute's batch reaches the file with the totals: History, when in view, reads it again.
    if (result.today && m_route == Route::history && !m_historyLoading)
        loadHistory();
    if (result.otherRecorder != m_otherRecorder) {
        m_otherRecorder = result.otherRecorder;
        what |= storeErrorChanged;
    }
    if (result.notice) {
        qCInfo(historyLog) << result.notice->english().c_str();
        tell(*result.notice, true);
    }
    // A history that could not be opened stays said; a tick's failure lasts until a tick goes well.
    setStoreError(result.error ? result.error : m_openError);
    notify(what);
}

void AppModel::setStoreError(const std::optional<Sentence>& failure)
{
    std::optional<std::string> error;
    if (failure) {
        const std::string english = failure->english();
        // SQLite's words end without a stop ("database or disk is full").
        const bool stopped = !english.empty() && std::string_view(".!?").find(english.back()) != std::string_view::npos;
        const QString said = Vexel::say(*failure);
        error = (stopped ? Vexel::tr("%1 %2", "a failure and what to do about it") : Vexel::tr("%1. %2"))
                    .arg(said, historyAdvice(english, m_paths.dir))
                    .toStdString();
    }
    if (error == m_storeError)
        return;
    if (error)
        qCWarning(historyLog) << error->c_str();
    m_storeError = std::move(error);
    notify(storeErrorChanged);
}

void AppModel::loadHistory()
{
    m_historyLoading = true;
    notify(historyChanged);
    const double now = m_clock();
    onSampler<Sampler::HistoryResult>([range = m_historyRange, now, rules = m_settings.spikes](
                                          Sampler& sampler) { return sampler.history(range, now, rules); },
        [this](Sampler::HistoryResult result) { receive(std::move(result)); });
}

void AppModel::receive(Sampler::HistoryResult result)
{
    if (result.error)
        setStoreError(result.error);
    m_history = std::move(result);
    m_historyLoading = false;
    notify(historyChanged);
}

void AppModel::loadHistorySync()
{
    const double now = m_clock();
    Sampler::HistoryResult result;
    m_sampler->run([&](Sampler& sampler) { result = sampler.history(m_historyRange, now, m_settings.spikes); });
    receive(std::move(result));
}

void AppModel::prepareAway()
{
    const double now = m_clock();
    if (!m_settings.lastSeen || now - *m_settings.lastSeen <= awayAfter)
        showAway(std::nullopt, {});
    else
        lookBackTo(*m_settings.lastSeen);
}

void AppModel::lookBackTo(double since)
{
    onSampler<Sampler::HistoryResult>([now = m_clock(), rules = m_settings.spikes](
                                          Sampler& sampler) { return sampler.history(HistoryRange::week, now, rules); },
        [this, since](Sampler::HistoryResult range) {
            if (range.error)
                setStoreError(range.error);
            std::vector<Spike> spikes;
            for (auto& spike : range.spikes)
                if (spike.end >= since)
                    spikes.push_back(std::move(spike));
            showAway(since, std::move(spikes));
        });
}

void AppModel::showAway(std::optional<double> since, std::vector<Spike> spikes)
{
    m_awaySince = since;
    m_awaySpikes = std::move(spikes);
    notify(awayChanged);
}

void AppModel::dismissAway()
{
    showAway(std::nullopt, {});
}

void AppModel::eraseHistory()
{
    ConfirmRequest request;
    request.title = {VEXEL_WORDS("vexel::Vexel", "Erase all history?")};
    request.message = {{VEXEL_WORDS("vexel::Vexel",
        "Vexel forgets every sample it has kept, up to a year. This can't be undone. New samples start right away.")}};
    request.button = {VEXEL_WORDS("vexel::Vexel", "Erase History")};
    request.destructive = true;
    request.confirm = [this] {
        onSampler<std::optional<Sentence>>([](Sampler& sampler) { return sampler.erase(); },
            [this](const std::optional<Sentence>& failed) {
                tell(failed ? Vexel::say(*failed) : Vexel::tr("History erased. New samples start now."),
                    failed.has_value());
                loadHistory();
            });
    };
    ask(std::move(request));
}

void AppModel::ask(ConfirmRequest request)
{
    qCInfo(actionsLog) << "asks:" << request.title.english().c_str();
    // A question the user is reading is never swapped for another (the
    // force offered four seconds after a stop): the new one waits its turn.
    if (m_confirm) {
        m_questions.push_back(std::move(request));
        return;
    }
    m_confirm = std::move(request);
    notify(confirmChanged);
}

void AppModel::nextQuestion()
{
    if (!m_confirm && !m_questions.empty()) {
        m_confirm = std::move(m_questions.front());
        m_questions.pop_front();
    }
    notify(confirmChanged);
}

void AppModel::confirmPending()
{
    auto request = std::move(m_confirm);
    m_confirm.reset();
    if (request && request->confirm)
        request->confirm();
    nextQuestion();
}

void AppModel::cancelPending()
{
    m_confirm.reset();
    nextQuestion();
}

void AppModel::tell(const QString& text, bool lasting)
{
    m_toast = text.toStdString();
    m_toastLasts = lasting;
    if (lasting)
        m_toastTimer.stop();
    else
        m_toastTimer.start();
    notify(toastChanged);
}

void AppModel::tell(const Sentence& said, bool lasting)
{
    tell(Vexel::say(said), lasting);
}

void AppModel::dismissToast()
{
    m_toastTimer.stop();
    m_toast.reset();
    notify(toastChanged);
}

Strain AppModel::strain(MenuItemKind kind) const
{
    if (!m_frame)
        return Strain::calm;
    const auto& rules = m_settings.strain;
    const auto& system = m_frame->system;
    switch (kind) {
    case MenuItemKind::cpu: return rules.cpu(system.cpu.user + system.cpu.system);
    case MenuItemKind::memory: return rules.memory(system.memory);
    case MenuItemKind::network: return rules.network(system.net);
    case MenuItemKind::thermal: return rules.thermal(system.thermal);
    case MenuItemKind::battery: return rules.battery(system.battery);
    case MenuItemKind::disk: return rules.disk(system.disk);
    case MenuItemKind::gpu: return rules.gpu(system.gpu);
    }
    return Strain::calm;
}

std::vector<AppGroup> AppModel::apps(AppSort by, size_t limit) const
{
    if (!m_frame)
        return {};
    std::vector<AppGroup> sorted = m_frame->apps;
    std::stable_sort(sorted.begin(), sorted.end(), [by](const AppGroup& a, const AppGroup& b) {
        return AppGrouper::sortValue(a, by) > AppGrouper::sortValue(b, by);
    });
    if (sorted.size() > limit)
        sorted.resize(limit);
    return sorted;
}

void AppModel::setAppSearch(std::string text)
{
    if (text == m_appSearch)
        return;
    m_appSearch = std::move(text);
    notify(selectionChanged);
}

void AppModel::selectApp(std::optional<std::string> id)
{
    if (id == m_selectedApp)
        return;
    m_selectedApp = std::move(id);
    notify(selectionChanged);
}

const AppGroup* AppModel::selected() const
{
    if (!m_frame || !m_selectedApp)
        return nullptr;
    const auto found = std::ranges::find(m_frame->apps, *m_selectedApp, &AppGroup::id);
    return found == m_frame->apps.end() ? nullptr : &*found;
}

void AppModel::setAppSort(AppSort sort)
{
    if (sort == m_settings.appSort)
        return;
    auto changed = m_settings;
    changed.appSort = sort;
    changeSettings(changed);
}

std::vector<AppGroup> AppModel::searchedApps() const
{
    return searchApps(apps(m_settings.appSort, std::numeric_limits<size_t>::max()), m_appSearch);
}

void AppModel::quitSelected()
{
    if (const auto* app = selected())
        m_flow->requestQuit(*app, false);
    else
        tell(Vexel::tr("Select an app in Apps first."));
}

void AppModel::copyCommand(const std::string& command)
{
    m_actions->copy(command);
    tell(PageTexts::commandCopied(platform));
}

void AppModel::copyAddress(uint16_t port)
{
    const std::string address = "http://localhost:" + std::to_string(port);
    m_actions->copy(address);
    tell(Vexel::tr("Copied %1.").arg(QString::fromStdString(address)));
}

void AppModel::reveal(const std::string& path)
{
    m_actions->reveal(path);
}

void AppModel::setOpenAtLogin(bool open)
{
    const std::string program = QCoreApplication::applicationFilePath().toStdString();
    onSampler<std::optional<Sentence>>(
        [open, program](Sampler&) -> std::optional<Sentence> {
            const auto file = autostartFile();
            try {
                if (open)
                    AtomicFile::write(file,
                        "[Desktop Entry]\nType=Application\nName=Vexel\nIcon=dev.vexel.Vexel\nExec="
                            + DesktopEntry::execArgument(program) + " --hidden\nX-GNOME-Autostart-enabled=true\n");
                else
                    std::filesystem::remove(file);
                return std::nullopt;
            } catch (const std::filesystem::filesystem_error& failure) {
                return Sentence{open ? VEXEL_WORDS("vexel::Vexel", "Couldn't write %1: %2.")
                                     : VEXEL_WORDS("vexel::Vexel", "Couldn't remove %1: %2."),
                    {{failure.path1().empty() ? file.string() : failure.path1().string()}, {failure.code().message()}}};
            } catch (const std::exception& failure) {
                return Sentence::asIs(failure.what());
            }
        },
        [this, open](const std::optional<Sentence>& failed) {
            m_loginItemError = failed ? std::optional(Vexel::say(*failed).toStdString()) : std::nullopt;
            if (!m_loginItemError)
                m_openAtLogin = open;
            notify(loginItemChanged);
        });
}

} // namespace vexel
