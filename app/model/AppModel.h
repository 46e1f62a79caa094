#pragma once

#include "Route.h"
#include "actions/ActionFlow.h"
#include "format/Fmt.h"
#include "grouping/AppSort.h"
#include "model/RecentRing.h"
#include "model/SamplerThread.h"
#include "platform/Environment.h"
#include "platform/Platform.h"
#include "sampling/Cadence.h"
#include "settings/MenuItemConfig.h"
#include "settings/VexelPaths.h"
#include "settings/VexelSettings.h"
#include "spikes/Strain.h"

#include <QCoreApplication>
#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace vexel {

// The one model behind the window, its pages and the panel items. It never
// samples: once per timer tick it decides what is due, hands that plan to the
// sampler's thread and installs the result when it comes back. Lives on the
// GUI thread; every published field is written there.
class AppModel : public QObject {
    Q_OBJECT

public:
    // What changed, so that a view repaints only what it shows.
    enum Change : unsigned {
        frameChanged = 1U << 0,
        settingsChanged = 1U << 1,
        routeChanged = 1U << 2,
        historyChanged = 1U << 3,
        awayChanged = 1U << 4,
        serversChanged = 1U << 5,
        dockerChanged = 1U << 6,
        totalsChanged = 1U << 7,
        confirmChanged = 1U << 8,
        toastChanged = 1U << 9,
        storeErrorChanged = 1U << 10,
        visibilityChanged = 1U << 11,
        loginItemChanged = 1U << 12,
        selectionChanged = 1U << 13,
        noticesChanged = 1U << 14,
    };

    struct Setup {
        VexelPaths paths;
        std::function<std::unique_ptr<Sampler>()> buildSampler; // runs on the sampler thread
        std::unique_ptr<ProcessActions> actions;
        std::function<double()> clock; // seconds since the epoch
        uint32_t myUID = 0;
        int32_t myPid = 0;
        bool observesVisibility = true; // false in snapshot mode: the window's visibility leaves the cadence alone
        Platform platform = livePlatform(); // whose words the texts use: the demo world is a Mac
        // The places and time the pages show things in: the user's, or the demo world's.
        std::string home = homeFolder();
        std::string programFolder = QCoreApplication::applicationDirPath().toStdString();
        TimeZone zone = TimeZone::current();
    };

    explicit AppModel(Setup setup);
    ~AppModel() override;

    // Where and for whom it runs, fixed for its life.
    const Platform platform;
    const std::string home; // paths under it are shown as ~/…
    const std::string programFolder; // where this program and the vexel command are
    const TimeZone zone; // whose days and hours the pages mark
    // Published state: what the pages show, read here and changed only through the methods below.
    [[nodiscard]] const VexelSettings& settings() const { return m_settings; }
    [[nodiscard]] const std::optional<Frame>& frame() const { return m_frame; }
    [[nodiscard]] Route route() const { return m_route; }
    [[nodiscard]] const std::optional<std::string>& selectedApp() const { return m_selectedApp; }
    [[nodiscard]] const std::string& appSearch() const { return m_appSearch; }
    [[nodiscard]] HistoryRange historyRange() const { return m_historyRange; }
    [[nodiscard]] const std::optional<Sampler::HistoryResult>& history() const { return m_history; }
    [[nodiscard]] bool historyLoading() const { return m_historyLoading; }
    [[nodiscard]] const std::vector<Spike>& awaySpikes() const { return m_awaySpikes; }
    [[nodiscard]] const std::optional<double>& awaySince() const { return m_awaySince; }
    [[nodiscard]] const std::vector<ProjectGroup>& servers() const { return m_servers; }
    [[nodiscard]] const std::vector<ListenSocket>& listeners() const { return m_listeners; }
    [[nodiscard]] bool serversLoaded() const { return m_serversLoaded; }
    [[nodiscard]] const std::optional<DockerState>& docker() const { return m_docker; }
    [[nodiscard]] const std::optional<HistoryStore::Totals>& today() const { return m_today; }
    [[nodiscard]] const std::vector<DayTotal>& week() const { return m_week; }
    [[nodiscard]] const std::vector<SysPoint>& todaySeries() const { return m_todaySeries; }
    [[nodiscard]] const std::optional<int64_t>& historyBytes() const { return m_historyBytes; }
    [[nodiscard]] const std::optional<ConfirmRequest>& confirm() const { return m_confirm; }
    [[nodiscard]] const std::optional<std::string>& toast() const { return m_toast; }
    [[nodiscard]] bool toastLasts() const { return m_toastLasts; } // the toast stays until closed
    [[nodiscard]] const std::optional<std::string>& storeError() const { return m_storeError; }
    // The process that records the history while this window reads it (the headless recorder).
    [[nodiscard]] const std::optional<int64_t>& otherRecorder() const { return m_otherRecorder; }
    // What the app has to say until the user closes it: the values of the
    // settings file it could not use, or why it could not read the file.
    [[nodiscard]] const std::vector<std::string>& notices() const { return m_notices; }
    [[nodiscard]] const RecentRing& ring() const { return m_ring; }
    [[nodiscard]] bool windowVisible() const { return m_windowVisible; }
    [[nodiscard]] int cores() const { return m_cores; }
    [[nodiscard]] const std::optional<std::string>& loginItemError() const
    {
        return m_loginItemError;
    } // shown under "Open Vexel at login"
    [[nodiscard]] bool firstLaunch() const
    {
        return m_firstLaunch;
    } // no earlier run was marked onboarded: this one may introduce Vexel

    // Lifecycle.
    void start(); // marks the first launch, a full refresh, then the timer
    void setWindowVisible(bool visible);
    void changeSettings(const VexelSettings& changed);
    void shutdown(); // the timer stops, lastSeen is saved
    void setRoute(Route next);
    void setHistoryRange(HistoryRange range);

    // One tick: dropped when the previous one is still running, or, when
    // full, run as soon as that one is back.
    void refresh(bool full);
    [[nodiscard]] bool busy() const { return m_busy; }
    // Whether anything given to the sampler's thread (a tick, a history
    // read, a save) has yet to come back.
    [[nodiscard]] bool working() const { return m_inFlight > 0 || m_fullPending; }

    // What a tick brought and what a history read found, as the sampler's
    // thread hands them over (and a test hands over its own).
    void receive(TickResult result);
    void receive(Sampler::HistoryResult result);

    void loadHistory();
    void loadHistorySync();
    // The away card: from the last time the user was here, when that was
    // long enough ago, or from `since`; spikes come from the week's history.
    void prepareAway();
    void lookBackTo(double since);
    void showAway(std::optional<double> since, std::vector<Spike> spikes);
    void dismissAway();
    void eraseHistory();

    // The confirmation sheet's two buttons, and the toast's close button.
    void confirmPending();
    void cancelPending();
    void dismissToast();
    void dismissNotice(size_t index);
    // Shows a toast: one that says what was done leaves by itself after
    // toastMilliseconds; a lasting one (a failure) stays until it is closed.
    static constexpr int toastMilliseconds = 6000;
    void tell(const QString& text, bool lasting = false);
    void tell(const Sentence& said, bool lasting = false);
    // Whether the toast shown is on its way out by itself.
    [[nodiscard]] bool toastLeaving() const { return m_toastTimer.isActive(); }
    [[nodiscard]] ActionFlow& actions() { return *m_flow; }

    // The Apps page: its search, the app selected in it (by group id) and
    // the apps the search finds, in the settings' order.
    void setAppSearch(std::string text);
    void selectApp(std::optional<std::string> id);
    [[nodiscard]] const AppGroup* selected() const;
    [[nodiscard]] bool canQuit(const AppGroup& app) const { return m_flow->allows(app); }
    [[nodiscard]] bool canStop(const ProcRow& row) const { return m_flow->allowsStop(row); }
    // The Apps page's order, kept in the settings.
    void setAppSort(AppSort sort);
    [[nodiscard]] uint32_t myUID() const { return m_flow->myUID(); }
    [[nodiscard]] std::vector<AppGroup> searchedApps() const;
    // "Quit Selected App…": asks to quit the app selected in the Apps page.
    void quitSelected();

    // Small actions that change nothing on the machine, each told in a toast.
    void copyCommand(const std::string& command);
    void copyAddress(uint16_t port);
    void reveal(const std::string& path);

    // The settings' scales: the core count when CPU figures are shares of
    // the whole machine (nothing when of one core), and the network's unit.
    [[nodiscard]] std::optional<int> cpuScaleCores() const
    {
        return m_settings.cpuScale == CPUScale::mac ? std::optional(m_cores) : std::nullopt;
    }
    [[nodiscard]] Fmt::RateUnit networkUnit() const
    {
        return m_settings.networkBits ? Fmt::RateUnit::bits : Fmt::RateUnit::bytes;
    }

    [[nodiscard]] Strain strain(MenuItemKind kind) const;
    [[nodiscard]] std::optional<double> peak(double RingSample::*field) const { return m_ring.peak(field); }
    [[nodiscard]] std::vector<AppGroup> apps(AppSort by, size_t limit) const;

    // "Open Vexel at login": the autostart entry of the desktop session,
    // written or removed on the sampler's thread.
    void setOpenAtLogin(bool open);
    [[nodiscard]] bool opensAtLogin() const { return m_openAtLogin; }

    // Seconds between ticks now.
    [[nodiscard]] double tickSeconds() const { return Cadence::tickSeconds(m_windowVisible, m_settings); }

signals:
    void changed(unsigned what);

private:
    void schedule();
    void setStoreError(const std::optional<Sentence>& error);
    void ask(ConfirmRequest request);
    void nextQuestion();
    // Runs `work` on the sampler's thread, then `done` here with its result.
    template <typename Result> void onSampler(std::function<Result(Sampler&)> work, std::function<void(Result)> done)
    {
        ++m_inFlight;
        m_sampler->post<Result>(std::move(work), [this, done = std::move(done)](Result result) {
            --m_inFlight;
            done(std::move(result));
        });
    }
    // Saves on the sampler's thread; a failure, or what became of an
    // unreadable file at the user's change, comes back as a toast.
    void saveSettings(SettingsFile::Saving saving);
    void notify(unsigned what) { emit changed(what); }

    VexelSettings m_settings;
    std::optional<Frame> m_frame;
    Route m_route = Route::overview;
    std::optional<std::string> m_selectedApp;
    std::string m_appSearch;
    HistoryRange m_historyRange = HistoryRange::today;
    std::optional<Sampler::HistoryResult> m_history;
    bool m_historyLoading = false;
    std::vector<Spike> m_awaySpikes;
    std::optional<double> m_awaySince;
    std::vector<ProjectGroup> m_servers;
    std::vector<ListenSocket> m_listeners;
    bool m_serversLoaded = false;
    std::optional<DockerState> m_docker;
    std::optional<HistoryStore::Totals> m_today;
    std::vector<DayTotal> m_week;
    std::vector<SysPoint> m_todaySeries;
    std::optional<int64_t> m_historyBytes;
    std::optional<ConfirmRequest> m_confirm;
    std::optional<std::string> m_toast;
    bool m_toastLasts = false; // the toast stays until closed
    std::optional<std::string> m_storeError;
    std::optional<int64_t> m_otherRecorder;
    std::vector<std::string> m_notices;
    RecentRing m_ring;
    bool m_windowVisible = false;
    int m_cores = 1;
    bool m_openAtLogin = false; // the autostart entry is there
    std::optional<std::string> m_loginItemError; // shown under "Open Vexel at login"
    bool m_firstLaunch = false; // no earlier run was marked onboarded: this one may introduce Vexel
    VexelPaths m_paths;
    std::function<double()> m_clock;
    bool m_observesVisibility;
    Cadence m_cadence;
    QTimer m_timer;
    QTimer m_toastTimer;
    bool m_busy = false;
    bool m_busyFull = false; // the tick in flight is a full one
    bool m_fullPending = false; // a full refresh asked for while a partial tick ran
    int m_inFlight = 0;
    std::deque<ConfirmRequest> m_questions; // asked while another was on screen
    std::optional<Sentence> m_openError;
    std::unique_ptr<ProcessActions> m_actions;
    std::unique_ptr<ActionFlow> m_flow;
    std::unique_ptr<SamplerThread> m_sampler; // last: stopped first, before what its results reach
};

} // namespace vexel
