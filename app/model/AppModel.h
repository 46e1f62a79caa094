#pragma once

#include "Route.h"
#include "actions/ActionFlow.h"
#include "format/Fmt.h"
#include "grouping/AppSort.h"
#include "model/Cadence.h"
#include "model/RecentRing.h"
#include "model/SamplerThread.h"
#include "platform/Environment.h"
#include "platform/Platform.h"
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

    // Published state.
    const Platform platform;
    const std::string home; // paths under it are shown as ~/…
    const std::string programFolder; // where this program and the vexel command are
    const TimeZone zone; // whose days and hours the pages mark
    VexelSettings settings;
    std::optional<Frame> frame;
    Route route = Route::overview;
    std::optional<std::string> selectedApp;
    std::string appSearch;
    HistoryRange historyRange = HistoryRange::today;
    std::optional<Sampler::HistoryResult> history;
    bool historyLoading = false;
    std::vector<Spike> awaySpikes;
    std::optional<double> awaySince;
    std::vector<ProjectGroup> servers;
    std::vector<ListenSocket> listeners;
    bool serversLoaded = false;
    std::optional<DockerState> docker;
    std::optional<HistoryStore::Totals> today;
    std::vector<DayTotal> week;
    std::vector<SysPoint> todaySeries;
    std::optional<int64_t> historyBytes;
    std::optional<ConfirmRequest> confirm;
    std::optional<std::string> toast;
    bool toastLasts = false; // the toast stays until closed
    std::optional<std::string> storeError;
    // The process that records the history while this window reads it (the headless recorder).
    std::optional<int64_t> otherRecorder;
    // What the app has to say until the user closes it: the values of the
    // settings file it could not use, or why it could not read the file.
    std::vector<std::string> notices;
    RecentRing ring;
    bool windowVisible = false;
    int cores = 1;
    bool openAtLogin = false; // the autostart entry is there
    std::optional<std::string> loginItemError; // shown under "Open Vexel at login"
    bool firstLaunch = false; // no earlier run was marked onboarded: this one may introduce Vexel

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

    void loadHistory();
    void loadHistorySync();
    void prepareAway();
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
        return settings.cpuScale == CPUScale::mac ? std::optional(cores) : std::nullopt;
    }
    [[nodiscard]] Fmt::RateUnit networkUnit() const
    {
        return settings.networkBits ? Fmt::RateUnit::bits : Fmt::RateUnit::bytes;
    }

    [[nodiscard]] Strain strain(MenuItemKind kind) const;
    [[nodiscard]] std::optional<double> peak(double RingSample::*field) const { return ring.peak(field); }
    [[nodiscard]] std::vector<AppGroup> apps(AppSort by, size_t limit) const;

    // "Open Vexel at login": the autostart entry of the desktop session,
    // written or removed on the sampler's thread.
    void setOpenAtLogin(bool open);
    [[nodiscard]] bool opensAtLogin() const { return openAtLogin; }

    // Seconds between ticks now.
    [[nodiscard]] double tickSeconds() const { return Cadence::tickSeconds(windowVisible, settings); }

signals:
    void changed(unsigned what);

private:
    void schedule();
    void apply(TickResult result);
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
