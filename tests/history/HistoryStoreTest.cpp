#include "history/HistoryStore.h"
#include "devservers/ActivityLog.h"
#include "history/Downsample.h"
#include "history/ReadOnlyOpen.h"
#include "io/Files.h"
#include "settings/VexelSettings.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sys/stat.h>

using namespace vexel;
namespace fs = std::filesystem;

namespace {

class StoreFile : public ::testing::Test {
protected:
    [[nodiscard]] fs::path file() const { return m_folder.path() / "data" / "history.sqlite"; }

    vexel::testing::TempFolder m_folder{"vexel-history"};
};

SysPoint sysAt(double t, double cpu = 0.5)
{
    SysPoint point;
    point.t = t;
    point.dur = 5;
    point.cpu = cpu;
    point.cpuMax = cpu;
    point.mem = 0.4;
    point.memMax = 0.45;
    point.pressure = 1;
    point.swap = 1e6;
    point.diskR = 100;
    point.diskW = 200;
    point.netIn = 300;
    point.netOut = 400;
    point.thermal = 2;
    return point;
}

AppPoint appAt(
    double t, const std::string& key, double cpu, double mem = 0, double energy = 0, double disk = 0, double net = 0)
{
    return AppPoint{t, 5, key, "Name of " + key, cpu, cpu, mem, energy, disk, net};
}

} // namespace

TEST_F(StoreFile, PointsReadBackWithAbsentReadingsAsAbsent)
{
    HistoryStore store(file(), HistoryAccess::readWrite);
    SysPoint full = sysAt(10);
    full.gpu = 0.3;
    full.gpuMax = 0.6;
    full.power = -12.5;
    full.battery = 77;
    const SysPoint bare = sysAt(15);
    store.insert(HistoryTier::minute, full, {appAt(10, "app:a", 0.5)});
    store.insert(HistoryTier::minute, bare, {});
    const auto points = store.points(HistoryTier::minute, 0, 100);
    ASSERT_EQ(points.size(), 2u);
    EXPECT_EQ(points[0], full);
    EXPECT_EQ(points[1], bare);
    EXPECT_FALSE(points[1].gpu);
    EXPECT_TRUE(store.points(HistoryTier::minute, 10.0001, 15).empty()); // from ≤ t < to
    EXPECT_TRUE(store.points(HistoryTier::hour, 0, 100).empty());
    EXPECT_EQ(store.appPoints(HistoryTier::minute, 0, 100), std::vector<AppPoint>{appAt(10, "app:a", 0.5)});
}

TEST_F(StoreFile, AppendingTheSameTimeTwiceKeepsOneRowPerKey)
{
    HistoryStore store(file(), HistoryAccess::readWrite);
    store.append(sysAt(50, 0.1), {appAt(50, "app:a", 0.1)});
    store.append(sysAt(50, 0.9), {appAt(50, "app:a", 0.9), appAt(50, "app:b", 0.2)});
    const auto points = store.points(HistoryTier::raw, 0, 100);
    ASSERT_EQ(points.size(), 1u);
    EXPECT_EQ(points[0].cpu, 0.9);
    EXPECT_EQ(store.rowCount(HistoryTier::raw, HistoryTable::apps), 2);
}

TEST_F(StoreFile, AppendKeepsTheBusiestAndTheLeadersOfEachKind)
{
    HistoryStore store(file(), HistoryAccess::readWrite);
    store.appsPerSample = 2;
    std::vector<AppPoint> apps;
    for (int i = 0; i < 10; ++i)
        apps.push_back(appAt(7, "app:" + std::to_string(i), 0.1 * i));
    apps[0].mem = 5e9; // idle but the largest
    apps[1].disk = 1e6; // idle but writing
    apps[9].mem = 4e9; // busiest and large: stored once
    store.append(sysAt(7), apps);
    const auto stored = store.appPoints(HistoryTier::raw, 0, 10);
    std::vector<std::string> keys;
    for (const auto& app : stored)
        keys.push_back(app.app);
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(keys, (std::vector<std::string>{"app:0", "app:1", "app:8", "app:9"}));
}

TEST_F(StoreFile, DeletingErasingAndMeta)
{
    HistoryStore store(file(), HistoryAccess::readWrite);
    for (int i = 0; i < 5; ++i)
        store.insert(HistoryTier::raw, sysAt(100.0 * i), {appAt(100.0 * i, "app:x", 1)});
    store.erase(HistoryTier::raw, -std::numeric_limits<double>::infinity());
    store.erase(HistoryTier::raw, std::nan(""));
    EXPECT_EQ(store.rowCount(HistoryTier::raw, HistoryTable::sys), 5);
    store.erase(HistoryTier::raw, 200);
    EXPECT_EQ(store.rowCount(HistoryTier::raw, HistoryTable::sys), 3);
    EXPECT_EQ(store.rowCount(HistoryTier::raw, HistoryTable::apps), 3);
    EXPECT_EQ(store.firstSample(), 200);

    store.setMeta("rolled1", 1795000000.123456789);
    EXPECT_EQ(store.watermark(HistoryTier::minute), 1795000000.123456789);
    EXPECT_FALSE(store.watermark(HistoryTier::tenMinutes));
    EXPECT_FALSE(store.meta("missing"));
    store.eraseAll();
    EXPECT_EQ(store.rowCount(HistoryTier::raw, HistoryTable::sys), 0);
    EXPECT_FALSE(store.watermark(HistoryTier::minute));
    EXPECT_EQ(store.meta("schema"), 1.0);
}

TEST_F(StoreFile, TheCapTrimsHourlyDataADayAtATimeAndNothingElse)
{
    HistoryStore store(file(), HistoryAccess::readWrite);
    std::vector<AppPoint> apps;
    store.batch([&] {
        for (int hour = 0; hour < 24 * 30; ++hour) {
            const double t = 3600.0 * hour;
            apps.clear();
            for (int a = 0; a < 12; ++a)
                apps.push_back(appAt(t, "app:" + std::string(40, static_cast<char>('a' + a)), 0.1));
            store.insert(HistoryTier::hour, sysAt(t), apps);
        }
        for (int i = 0; i < 500; ++i) {
            store.insert(HistoryTier::raw, sysAt(1e7 + i), {});
            store.insert(HistoryTier::minute, sysAt(1e7 + i), {});
            store.insert(HistoryTier::tenMinutes, sysAt(1e7 + i), {});
        }
    });
    const int64_t before = store.usedBytes();
    store.maxBytes = before / 2;
    store.enforceCap();
    EXPECT_LE(store.usedBytes(), store.maxBytes);
    const auto first = store.firstSample();
    const auto hours = store.points(HistoryTier::hour, 0, 1e9);
    ASSERT_FALSE(hours.empty());
    EXPECT_EQ(std::fmod(hours.front().t, 86400), 0) << "whole days are dropped";
    EXPECT_GT(hours.front().t, 0);
    EXPECT_EQ(store.rowCount(HistoryTier::raw, HistoryTable::sys), 500);
    EXPECT_EQ(store.rowCount(HistoryTier::minute, HistoryTable::sys), 500);
    EXPECT_EQ(store.rowCount(HistoryTier::tenMinutes, HistoryTable::sys), 500);
    EXPECT_TRUE(first);
    // Nothing coarse left to trim: the cap gives up rather than touch finer tiers.
    store.maxBytes = 1;
    store.enforceCap();
    EXPECT_EQ(store.rowCount(HistoryTier::hour, HistoryTable::sys), 0);
    EXPECT_EQ(store.rowCount(HistoryTier::raw, HistoryTable::sys), 500);
}

// Grouping a year of hourly rows for eight apps sorts more than the page
// cache holds; a reader, which may not create temporary files, still does it.
TEST_F(StoreFile, AReaderSortsMoreRowsThanItsCacheHolds)
{
    constexpr int hours = 8760;
    {
        HistoryStore writer(file(), HistoryAccess::readWrite);
        writer.batch([&] {
            for (int h = 0; h < hours; ++h) {
                std::vector<AppPoint> apps;
                for (int a = 0; a < 8; ++a)
                    apps.push_back(AppPoint{h * 3600.0, 3600, "app:" + std::to_string(a), "App", 0.5, 1, 1e8, 0, 1, 0});
                writer.insert(HistoryTier::hour, sysAt(h * 3600.0), apps);
            }
        });
    }
    sqlite3* handle = nullptr;
    ASSERT_EQ(Sqlite::openReadOnly(file(), &handle, Sqlite::waitMilliseconds), SQLITE_OK);
    const Sqlite::Database reader(handle);
    const Sqlite::Statement grouped(
        reader.get(), "SELECT app, count(*), total(dur * cpu), total(mem), total(disk) FROM apps GROUP BY app");
    int apps = 0;
    while (grouped.next()) {
        ++apps;
        EXPECT_EQ(grouped.integer(1), hours);
    }
    EXPECT_EQ(apps, 8);
}

// The data folder records which apps ran and when: under the usual umask
// (022) every file in it is the user's alone, and so is the folder.
TEST_F(StoreFile, TheDataFolderIsTheUsersAloneWhateverTheUmask)
{
    const mode_t old = ::umask(022);
    const auto modeOf = [](const fs::path& path) { return fs::status(path).permissions() & fs::perms::all; };
    const auto privateFile = fs::perms::owner_read | fs::perms::owner_write;
    {
        HistoryStore store(file(), HistoryAccess::readWrite);
        store.insert(HistoryTier::raw, sysAt(1), {});
        VexelSettings().save(file().parent_path() / "settings.json");
        ActivityLog().save(file().parent_path() / "server-activity.json");
        EXPECT_EQ(modeOf(file().parent_path()), fs::perms::owner_all);
        for (const char* name :
            {"history.sqlite", "history.sqlite-wal", "history.sqlite-shm", "settings.json", "server-activity.json"})
            EXPECT_EQ(modeOf(file().parent_path() / name), privateFile) << name;
    }
    ::umask(old);
}

namespace {

void runSql(const fs::path& file, const std::string& script)
{
    sqlite3* db = nullptr;
    ASSERT_EQ(::sqlite3_open(file.c_str(), &db), SQLITE_OK);
    ASSERT_EQ(::sqlite3_exec(db, script.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << ::sqlite3_errmsg(db);
    ::sqlite3_close(db);
}

long long pragmaOf(const fs::path& file, const std::string& name)
{
    sqlite3* db = nullptr;
    ::sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* query = nullptr;
    ::sqlite3_prepare_v2(db, ("PRAGMA " + name).c_str(), -1, &query, nullptr);
    const long long value = ::sqlite3_step(query) == SQLITE_ROW ? ::sqlite3_column_int64(query, 0) : -1;
    ::sqlite3_finalize(query);
    ::sqlite3_close(db);
    return value;
}

const std::string vexelTables
    = "CREATE TABLE sys(tier INTEGER NOT NULL, t REAL NOT NULL, dur REAL NOT NULL, cpu REAL, cpu_max REAL, mem REAL, "
      "mem_max REAL, pressure INTEGER, swap REAL, disk_r REAL, disk_w REAL, net_in REAL, net_out REAL, gpu REAL, "
      "gpu_max REAL, power REAL, battery REAL, thermal INTEGER, PRIMARY KEY(tier, t)) WITHOUT ROWID;"
      "CREATE TABLE apps(tier INTEGER NOT NULL, t REAL NOT NULL, app TEXT NOT NULL, name TEXT NOT NULL, dur REAL, "
      "cpu REAL, cpu_max REAL, mem REAL, energy REAL, disk REAL, net REAL, PRIMARY KEY(tier, t, app)) WITHOUT ROWID;"
      "CREATE TABLE meta(key TEXT PRIMARY KEY, value TEXT);";

} // namespace

// history.sqlite is Vexel's or it is left alone: another program's database
// at that path (Erase History would empty its tables), or a history from a
// newer Vexel, is refused by the recorder and by readers alike, with the file
// named, and not one byte or permission bit of it changes.
TEST_F(StoreFile, AFileThatIsNotVexelsIsRefusedUntouched)
{
    struct Case {
        const char* name;
        std::string script;
        const char* said;
    };
    const Case cases[] = {
        {"another program's",
            "CREATE TABLE notes(id INTEGER PRIMARY KEY, text TEXT); INSERT INTO notes VALUES(1, 'x');",
            "isn't a Vexel history"},
        {"tables named like Vexel's", "CREATE TABLE sys(x); CREATE TABLE apps(y); CREATE TABLE meta(key, value);",
            "isn't a Vexel history"},
        {"another program's mark", "PRAGMA application_id=42; CREATE TABLE t(x);", "isn't a Vexel history"},
        {"a newer Vexel's",
            "PRAGMA application_id=" + std::to_string(HistoryStore::applicationId)
                + "; PRAGMA user_version=" + std::to_string(HistoryStore::schemaVersion + 1) + ";" + vexelTables,
            "was written by a newer version of Vexel"},
    };
    fs::create_directories(file().parent_path());
    for (const auto& c : cases) {
        fs::remove(file());
        runSql(file(), c.script);
        fs::permissions(file(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
        const auto before = vexel::Files::read(file().string());
        for (const auto access : {HistoryAccess::readWrite, HistoryAccess::readOnly}) {
            try {
                HistoryStore store(file(), access);
                ADD_FAILURE() << c.name << " was opened";
            } catch (const HistoryError& error) {
                EXPECT_EQ(error.kind(), HistoryError::Kind::open);
                EXPECT_NE(std::string(error.what()).find(file().string() + " " + c.said), std::string::npos)
                    << error.what();
            }
        }
        EXPECT_EQ(vexel::Files::read(file().string()), before) << c.name;
        EXPECT_EQ(fs::status(file()).permissions() & fs::perms::all,
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read)
            << c.name;
        EXPECT_FALSE(fs::exists(file().string() + "-wal") || fs::exists(file().string() + "-shm")) << c.name;
    }
}

// An empty file may still become the history, and an older Vexel's history,
// written before files were marked, is recognised by its tables and marked.
TEST_F(StoreFile, AnEmptyFileOrAnUnmarkedVexelHistoryBecomesTheMarkedHistory)
{
    fs::create_directories(file().parent_path());
    std::ofstream(file()).close();
    {
        HistoryStore store(file(), HistoryAccess::readWrite);
        store.insert(HistoryTier::raw, sysAt(100), {});
    }
    EXPECT_EQ(pragmaOf(file(), "application_id"), HistoryStore::applicationId);
    EXPECT_EQ(pragmaOf(file(), "user_version"), HistoryStore::schemaVersion);

    fs::remove(file());
    runSql(file(), vexelTables + "INSERT INTO meta VALUES('schema', '1');");
    runSql(file(), "INSERT INTO sys(tier, t, dur) VALUES(0, 100, 5)");
    EXPECT_EQ(HistoryStore(file(), HistoryAccess::readOnly).rowCount(HistoryTier::raw, HistoryTable::sys), 1);
    {
        HistoryStore store(file(), HistoryAccess::readWrite);
        EXPECT_EQ(store.rowCount(HistoryTier::raw, HistoryTable::sys), 1);
    }
    EXPECT_EQ(pragmaOf(file(), "application_id"), HistoryStore::applicationId);
}
