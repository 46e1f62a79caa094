// The engine's parts that decide what a tick does and keep what it read: the
// cadence of readings, the batching of history writes and the sampler.

#include "io/Files.h"
#include "sampling/Cadence.h"
#include "sampling/HistoryBatch.h"
#include "sampling/Sampler.h"
#include "support/TempFolder.h"
#include "synth/DemoWorld.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <sys/stat.h>

#include <cmath>
#include <fstream>

#include <filesystem>
#include <functional>
#include <map>
#include <vector>

using namespace vexel;

namespace {

// How many ticks from `from` for `seconds`, `step` apart, in `view`, planned `reading`.
int planned(Cadence& cadence, double from, double seconds, double step, Cadence::View view, bool TickPlan::*reading)
{
    const VexelSettings settings;
    int count = 0;
    for (double now = from; now < from + seconds; now += step)
        count += cadence.plan(now, false, view, settings).*reading ? 1 : 0;
    return count;
}

Frame frameAt(double time, double interval)
{
    Frame frame;
    frame.time = time;
    frame.interval = interval;
    frame.system = SystemSnapshot::empty(time);
    frame.system.cpu.user = 0.25;
    return frame;
}

} // namespace

// Each slow reading comes as often as what is in view needs it: containers
// only on Developers, per-app network faster where it is shown, everything
// slower with the window closed, and all of it on a full refresh.
TEST(Cadence, ReadsWhatTheViewNeedsAndNothingItDoesNot)
{
    VexelSettings settings;
    settings.sampleSeconds = 5;
    EXPECT_EQ(Cadence::tickSeconds(false, settings), 5);
    EXPECT_EQ(Cadence::tickSeconds(true, settings), 2);
    settings.sampleSeconds = 0; // set in code out of range: never a spinning timer
    EXPECT_EQ(Cadence::tickSeconds(false, settings), VexelSettings::shortestSample);

    const Cadence::View hidden{false, false, true};
    const Cadence::View developers{true, false, true};
    const Cadence::View overview{true, true, false};
    const Cadence::View cpu{true, false, false};
    const auto count = [](Cadence::View view, bool TickPlan::*reading) {
        Cadence cadence;
        (void)cadence.plan(1000, true, view, {});
        return planned(cadence, 1002, 600, 2, view, reading);
    };
    EXPECT_EQ(count(hidden, &TickPlan::docker), 0);
    EXPECT_GT(count(developers, &TickPlan::docker), 0);
    EXPECT_EQ(count(overview, &TickPlan::docker), 0);
    EXPECT_GT(count(developers, &TickPlan::ports), count(overview, &TickPlan::ports));
    EXPECT_GT(count(overview, &TickPlan::network), count(cpu, &TickPlan::network));
    EXPECT_GT(count(cpu, &TickPlan::network), count(hidden, &TickPlan::network));
    EXPECT_GT(count(cpu, &TickPlan::everyone), count(hidden, &TickPlan::everyone));
    EXPECT_GT(count(hidden, &TickPlan::compact), 0);

    Cadence cadence;
    const auto first = cadence.plan(1000, true, hidden, settings);
    EXPECT_TRUE(first.everyone && first.network && first.ports && first.docker && first.compact && first.totals);
    (void)planned(cadence, 1002, 10, 2, overview, &TickPlan::ports);
    cadence.requestPorts(); // a server was stopped: the next tick scans, wherever the user is
    EXPECT_TRUE(cadence.plan(1012, false, overview, settings).ports);
    EXPECT_FALSE(cadence.plan(1014, false, overview, settings).ports);
    // Leaving Developers stops the containers.
    EXPECT_GT(planned(cadence, 1016, 60, 2, developers, &TickPlan::docker), 0);
    EXPECT_EQ(planned(cadence, 1076, 60, 2, overview, &TickPlan::docker), 0);
}

// When and which frames are written is the sampler's test below; here, a
// write that fails keeps the points for the next one.
TEST(HistoryBatch, AFailedWriteKeepsThePoints)
{
    const vexel::testing::TempFolder folder("vexel-batch");
    HistoryStore store(folder.path() / "history.sqlite", HistoryAccess::readWrite);
    HistoryBatch batch;
    EXPECT_FALSE(batch.add(frameAt(1000, 0))); // the first frame: no interval
    EXPECT_TRUE(batch.add(frameAt(1002, 2)));
    HistoryStore reader(folder.path() / "history.sqlite", HistoryAccess::readOnly);
    EXPECT_ANY_THROW(batch.writeTo(reader));
    EXPECT_EQ(batch.size(), 1u);
    batch.writeTo(store);
    EXPECT_EQ(batch.size(), 0u);
    EXPECT_EQ(store.rowCount(HistoryTier::raw, HistoryTable::sys), 1);
}

namespace {

// A sampler over the demo world, recording into a file of its own.
struct DemoSampler {
    vexel::testing::TempFolder folder{"vexel-sampler"};
    DemoWorld world;
    std::optional<Sentence> openError;
    VexelPaths paths{folder.path()};
    Sampler sampler{world.monitor(), Sampler::openStore(paths, openError), paths, TimeZone::fixed(0)};

    DemoSampler()
    {
        sampler.beforeSample = [this](double now) { world.advance(now - world.now()); };
    }

    TickResult tickAt(double now, TickPlan plan = {.record = true}) { return sampler.tick(now, plan); }

    [[nodiscard]] int64_t storedRows() const
    {
        HistoryStore reader(paths.history(), HistoryAccess::readOnly);
        return reader.rowCount(HistoryTier::raw, HistoryTable::sys);
    }
};

} // namespace

TEST(Sampler, HistoryReachesTheFileWithinAMinuteAndAllOfItByQuit)
{
    DemoSampler demo;
    ASSERT_TRUE(demo.sampler.recording()) << demo.openError.value_or(Sentence{}).english();
    const double start = demo.world.now();
    (void)demo.tickAt(start); // the first frame has no interval: shown, never kept
    for (int i = 1; i <= 29; ++i)
        EXPECT_FALSE(demo.tickAt(start + 2 * i).error);
    EXPECT_EQ(demo.storedRows(), 0); // 58 s of frames wait in memory
    (void)demo.tickAt(start + 62);
    EXPECT_EQ(demo.storedRows(), 30); // the minute is written in one go
    (void)demo.tickAt(start + 64);
    (void)demo.tickAt(start + 66);
    EXPECT_EQ(demo.storedRows(), 30);
    demo.sampler.flush(); // at quit
    EXPECT_EQ(demo.storedRows(), 32);
    // A frame after a long gap (the machine slept) is shown but not kept.
    const auto late = demo.tickAt(start + 366);
    EXPECT_GT(late.frame.interval, 120);
    demo.sampler.flush();
    EXPECT_EQ(demo.storedRows(), 32);
}

TEST(Sampler, CompactionTotalsPortsAndContainers)
{
    DemoSampler demo;
    const double start = demo.world.now();
    (void)demo.tickAt(start);
    for (int i = 1; i <= 10; ++i)
        (void)demo.tickAt(start + 2 * i);
    const auto result = demo.tickAt(start + 22,
        {.ports = true, .docker = true, .record = true, .compact = true, .totals = true, .maxBytes = 64'000'000});
    EXPECT_FALSE(result.error);
    EXPECT_EQ(demo.storedRows(), 11); // compaction and totals see the waiting points first
    ASSERT_TRUE(result.today && result.week && result.todaySeries && result.historyBytes);
    EXPECT_GT(result.today->diskW, 0);
    ASSERT_EQ(result.week->size(), 7u);
    EXPECT_DOUBLE_EQ(result.week->back().totals.diskW, result.today->diskW);
    EXPECT_FALSE(result.todaySeries->empty());
    ASSERT_TRUE(result.servers && result.listeners && result.docker);
    EXPECT_FALSE(result.servers->empty());
    EXPECT_TRUE(std::filesystem::exists(demo.paths.activity())); // saved with each port scan that changed it
    struct stat before { };
    ASSERT_EQ(::stat(demo.paths.activity().c_str(), &before), 0);
    (void)demo.tickAt(start + 22, {.ports = true}); // the same moment: nothing new to log
    struct stat after { };
    ASSERT_EQ(::stat(demo.paths.activity().c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino); // not written again (a save replaces the file)
    // Readings not planned are not read: the model keeps what it has.
    const auto plain = demo.tickAt(start + 24);
    EXPECT_FALSE(plain.servers || plain.docker || plain.today || plain.historyBytes);
}

TEST(Sampler, AHistoryThatCannotBeOpenedIsSaidAndNothingIsRecorded)
{
    const vexel::testing::TempFolder folder("vexel-sampler");
    std::filesystem::create_directories(folder.path() / "history.sqlite"); // a folder where the file should be
    const VexelPaths paths(folder.path());
    std::optional<Sentence> error;
    auto store = Sampler::openStore(paths, error);
    EXPECT_FALSE(store);
    ASSERT_TRUE(error);
    EXPECT_NE(error->english().find("history"), std::string::npos) << error->english();
    DemoWorld world;
    Sampler sampler(world.monitor(), nullptr, paths);
    EXPECT_FALSE(sampler.recording());
    const auto result = sampler.tick(world.now(), {.record = true, .compact = true, .totals = true});
    EXPECT_FALSE(result.today);
    EXPECT_TRUE(sampler.history(HistoryRange::today, world.now(), SpikeRules{}).points.empty());
}

// A user kept two years of history ("retentionDays": 730) in a settings file
// that gained a trailing comma: the hourly rows of 400 and 500 days ago stay
// through a compaction, even under the smallest size cap; the defaults (365
// days, 64 MB) never expire or trim them on the user's behalf. Limits the
// user wrote apply as written.
TEST(Sampler, HistoryIsNeverExpiredOnLimitsTheUserDidNotWrite)
{
    struct Case {
        const char* settings;
        int64_t maxBytes;
        std::vector<double> daysKept;
    };
    const Case cases[] = {
        {"{\"retentionDays\": 730,}", 1, {500, 400}},
        {"{\"maxHistoryMB\": 0.5}", 1, {500, 400}},
        {"{\"retentionDays\": 450}", 64'000'000, {400}},
        {"{\"retentionDays\": 730}", 1, {}},
    };
    for (const auto& c : cases) {
        const vexel::testing::TempFolder folder("vexel-sampler");
        const VexelPaths paths(folder.path());
        std::ofstream(paths.settings()) << c.settings;
        DemoWorld world;
        const double now = world.now();
        {
            HistoryStore store(paths.history(), HistoryAccess::readWrite);
            for (const double days : {500.0, 400.0}) {
                SysPoint hour;
                hour.t = now - days * 86400;
                hour.dur = 3600;
                store.insert(HistoryTier::hour, hour, {});
            }
        }
        std::optional<Sentence> error;
        Sampler sampler(world.monitor(), Sampler::openStore(paths, error), paths, TimeZone::fixed(0));
        // The plan carries the settings as loaded: defaults where the file could not be read.
        const auto result = sampler.tick(now,
            {.record = true,
                .compact = true,
                .retentionDays = sampler.settingsFile().settings().retentionDays,
                .maxBytes = c.maxBytes});
        EXPECT_FALSE(result.error) << result.error->english();
        const HistoryStore reader(paths.history(), HistoryAccess::readOnly);
        std::vector<double> kept;
        for (const auto& point : reader.points(HistoryTier::hour, 0, now))
            kept.push_back(std::round((now - point.t) / 86400));
        EXPECT_EQ(kept, c.daysKept) << c.settings << " with a cap of " << c.maxBytes;
    }
}

// `rm history.sqlite*` while recording: the recorder used to go on writing
// into the deleted file, and lose all of it at the stop. It notices before
// its next write, says so and starts a new file with the points still
// waiting. A file put in the history's place is recorded into when it is a
// Vexel history (a backup put back), and refused, untouched, when not.
TEST(Sampler, AHistoryRemovedOrReplacedWhileRecordingIsNoticed)
{
    DemoSampler demo;
    const double start = demo.world.now();
    (void)demo.tickAt(start);
    for (int i = 1; i <= 10; ++i)
        (void)demo.tickAt(start + 2 * i); // twenty seconds of points wait to be written
    const std::string history = demo.paths.history().string();
    for (const char* companion : {"", "-wal", "-shm"})
        std::filesystem::remove(history + companion);
    const auto noticed = demo.tickAt(start + 22);
    ASSERT_TRUE(noticed.notice);
    EXPECT_NE(noticed.notice->english().find(history + " was removed or replaced"), std::string::npos)
        << noticed.notice->english();
    EXPECT_FALSE(noticed.error);
    EXPECT_FALSE(demo.sampler.flush());
    EXPECT_EQ(demo.storedRows(), 11) << "the waiting points are in the new file";

    // A backup put back in its place (the old log still beside it).
    const auto backup = demo.folder.path() / "backup.sqlite";
    {
        HistoryStore other(backup, HistoryAccess::readWrite);
        SysPoint kept;
        kept.t = start - 600;
        kept.dur = 5;
        other.insert(HistoryTier::raw, kept, {});
    }
    std::filesystem::rename(backup, history);
    (void)demo.tickAt(start + 24);
    EXPECT_FALSE(demo.sampler.flush());
    EXPECT_EQ(demo.storedRows(), 2) << "the backup's row and the one written since, nothing of the old log";

    // Another program's file: refused, named, and left as it was.
    const auto foreign = demo.folder.path() / "notes.sqlite";
    sqlite3* db = nullptr;
    ASSERT_EQ(::sqlite3_open(foreign.c_str(), &db), SQLITE_OK);
    ASSERT_EQ(
        ::sqlite3_exec(db, "CREATE TABLE notes(text); INSERT INTO notes VALUES('mine');", nullptr, nullptr, nullptr),
        SQLITE_OK);
    ::sqlite3_close(db);
    const auto bytes = vexel::Files::read(foreign.string());
    std::filesystem::rename(foreign, history);
    const auto refused = demo.tickAt(start + 26);
    ASSERT_TRUE(refused.error);
    EXPECT_NE(refused.error->english().find(history + " isn't a Vexel history"), std::string::npos)
        << refused.error->english();
    EXPECT_FALSE(demo.sampler.recording());
    EXPECT_EQ(vexel::Files::read(history), bytes);
}

// The window beside the headless recorder used to open no history at all
// ("History starts now", an empty week). It reads the recorder's history:
// today's totals and series, the History page's range, refreshed with each
// minute; it cannot erase what it doesn't keep; and when the recorder stops
// it takes the recording over in the same file.
TEST(Sampler, TheWindowReadsTheRecordersHistoryAndTakesOverWhenItStops)
{
    const vexel::testing::TempFolder folder("vexel-sampler");
    const VexelPaths paths(folder.path());
    DemoWorld world;
    const double start = world.now();
    auto recorderLock = std::make_unique<RecorderLock>(paths.dir);
    ASSERT_TRUE(recorderLock->held());
    std::optional<Sentence> error;
    auto recorder
        = std::make_unique<Sampler>(world.monitor(), Sampler::openStore(paths, error), paths, TimeZone::fixed(0));
    recorder->beforeSample = [&](double now) { world.advance(now - world.now()); };
    double now = start;
    const auto record = [&](int ticks) {
        for (int i = 0; i < ticks; ++i, now += 5)
            (void)recorder->tick(now, {.record = true});
        EXPECT_FALSE(recorder->flush());
    };
    record(13);

    DemoWorld screen;
    Sampler window(screen.monitor(), nullptr, paths, TimeZone::fixed(0));
    window.recordUnder(std::make_unique<RecorderLock>(paths.dir));
    EXPECT_FALSE(window.recording());
    const TickPlan minute{.record = true, .compact = true, .totals = true};
    const auto first = window.tick(now, minute);
    EXPECT_FALSE(first.error) << first.error->english();
    EXPECT_EQ(first.otherRecorder, ::getpid());
    ASSERT_TRUE(first.today && first.todaySeries);
    EXPECT_GT(first.today->diskW, 0);
    EXPECT_FALSE(window.history(HistoryRange::today, now, SpikeRules{}).points.empty());
    const auto refused = window.erase();
    ASSERT_TRUE(refused);
    EXPECT_NE(refused->english().find("keeps the history, so it can't be erased from this window"), std::string::npos);

    record(12); // a minute on, the window sees it
    const auto later = window.tick(now, minute);
    EXPECT_GT(later.today->diskW, first.today->diskW);

    recorder.reset();
    recorderLock.reset(); // the recorder stops
    const auto takeOver = window.tick(now, minute);
    ASSERT_TRUE(takeOver.notice);
    EXPECT_EQ(takeOver.notice->english(), "Vexel's recorder stopped, so this window records the history now.");
    EXPECT_FALSE(takeOver.otherRecorder);
    EXPECT_TRUE(window.recording());
    for (int i = 1; i <= 3; ++i)
        (void)window.tick(now + 2 * i, {.record = true});
    EXPECT_FALSE(window.flush());
    const HistoryStore stored(paths.history(), HistoryAccess::readOnly);
    EXPECT_EQ(stored.rowCount(HistoryTier::raw, HistoryTable::sys), 12 + 12 + 3) << "one file, both writers' rows";
}
