#include "history/HistoryStore.h"

#include "format/CFormat.h"
#include "history/Downsample.h"
#include "history/ReadOnlyOpen.h"
#include "io/Files.h"
#include "text/TextScan.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <sys/stat.h>

namespace vexel {

namespace {

constexpr const char* schema
    = "CREATE TABLE IF NOT EXISTS sys(tier INTEGER NOT NULL, t REAL NOT NULL, dur REAL NOT NULL,\n"
      "  cpu REAL, cpu_max REAL, mem REAL, mem_max REAL, pressure INTEGER, swap REAL,\n"
      "  disk_r REAL, disk_w REAL, net_in REAL, net_out REAL, gpu REAL, gpu_max REAL,\n"
      "  power REAL, battery REAL, thermal INTEGER, PRIMARY KEY(tier, t)) WITHOUT ROWID;\n"
      "CREATE TABLE IF NOT EXISTS apps(tier INTEGER NOT NULL, t REAL NOT NULL, app TEXT NOT NULL, name TEXT NOT NULL,\n"
      "  dur REAL, cpu REAL, cpu_max REAL, mem REAL, energy REAL, disk REAL, net REAL,\n"
      "  PRIMARY KEY(tier, t, app)) WITHOUT ROWID;\n"
      "CREATE TABLE IF NOT EXISTS meta(key TEXT PRIMARY KEY, value TEXT);\n"
      "INSERT OR IGNORE INTO meta(key, value) VALUES('schema', '1');";

constexpr int writableFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_FULLMUTEX;
// 4000 pages of 1 KB: the log grows to about 4 MB between checkpoints.
constexpr int checkpointPages = 4000;
constexpr int capDaysPerCompaction = 400;

long long tierValue(HistoryTier tier)
{
    return static_cast<long long>(tier);
}

// SQLite's words for a failed open, with the system's reason when there is
// one ("unable to open database file (Permission denied)").
std::string openFailure(sqlite3* handle, int result)
{
    if (handle == nullptr)
        return ::sqlite3_errstr(result);
    std::string message = ::sqlite3_errmsg(handle);
    if (const int error = ::sqlite3_system_errno(handle); error != 0)
        message += std::string(" (") + std::strerror(error) + ")";
    return message;
}

int64_t sizeOf(const std::string& path)
{
    struct stat info { };
    return ::stat(path.c_str(), &info) == 0 ? static_cast<int64_t>(info.st_size) : 0;
}

long long pragmaValue(sqlite3* db, const char* name)
{
    const Sqlite::Statement query(db, std::string("PRAGMA ") + name);
    return query.next() ? query.integer(0) : 0;
}

// Whether a file without the mark holds exactly the tables an earlier Vexel
// made, with its schema row: a history from before files were marked.
bool earlierVexelHistory(sqlite3* db)
{
    std::vector<std::string> tables;
    const Sqlite::Statement names(
        db, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite%' ORDER BY name");
    while (names.next())
        tables.push_back(names.text(0));
    if (tables != std::vector<std::string>{"apps", "meta", "sys"})
        return false;
    const Sqlite::Statement version(db, "SELECT value FROM meta WHERE key = 'schema'");
    return version.next() && version.text(0) == "1";
}

// Refuses, naming the file, what is not Vexel's history or is a newer Vexel's.
void requireVexelsOwn(sqlite3* db, const std::filesystem::path& file)
{
    const long long id = pragmaValue(db, "application_id");
    if (id == HistoryStore::applicationId) {
        if (const long long version = pragmaValue(db, "user_version"); version > HistoryStore::schemaVersion)
            throw HistoryError(HistoryError::Kind::open,
                Sentence{VEXEL_WORDS("vexel::Vexel",
                             "Couldn't open the history: %1 was written by a newer version of Vexel (history version "
                             "%2; this one reads up to %3). Vexel leaves it alone; update Vexel to use it."),
                    {{file.string()}, {std::to_string(version)}, {std::to_string(HistoryStore::schemaVersion)}}});
        return;
    }
    const Sqlite::Statement tables(db, "SELECT count(*) FROM sqlite_schema");
    const bool empty = tables.next() && tables.integer(0) == 0;
    if (id == 0 && (empty || earlierVexelHistory(db)))
        return;
    throw HistoryError(HistoryError::Kind::open,
        Sentence{VEXEL_WORDS("vexel::Vexel",
                     "Couldn't open the history: %1 isn't a Vexel history: it is another program's SQLite database. "
                     "Vexel leaves it alone; move it elsewhere and Vexel starts a new history there."),
            {{file.string()}}});
}

// The check a writer makes before it changes anything, on a connection that
// writes nothing (no log, no index, no permissions). A file not there yet, or
// empty, becomes a new history. When the file cannot be read that way for a
// moment (another process recovering its log), the writer's own connection
// checks it before the first change.
void checkBeforeWriting(const std::filesystem::path& file)
{
    if (sizeOf(file.string()) == 0)
        return;
    sqlite3* handle = nullptr;
    const int result = Sqlite::openReadOnly(file, &handle, Sqlite::waitMilliseconds);
    const Sqlite::Database db(handle);
    if (result != SQLITE_OK) {
        if (!Sqlite::transient(result))
            throw HistoryError(HistoryError::Kind::open, openFailure(handle, result));
        return;
    }
    try {
        requireVexelsOwn(db.get(), file);
    } catch (const HistoryError& failure) {
        if (failure.kind() == HistoryError::Kind::open)
            throw; // refused
        // A read refused for a moment: the writer's connection checks before its first change.
    }
}

} // namespace

HistoryStore::HistoryStore(std::filesystem::path file, HistoryAccess access)
    : m_file(std::move(file))
    , m_readOnly(access == HistoryAccess::readOnly)
{
    if (!m_readOnly) {
        if (m_file.has_parent_path())
            Files::createPrivateFolder(m_file.parent_path());
        checkBeforeWriting(m_file);
        // The history tells which apps ran and when: the user's alone, the
        // log and index too (SQLite gives them the database file's mode).
        Files::makePrivateFile(m_file);
        for (const char* companion : {"-wal", "-shm"})
            if (const auto path = m_file.string() + companion; Files::exists(path))
                Files::makePrivateFile(path);
    }
    connect();
    struct stat opened { };
    if (::stat(m_file.c_str(), &opened) == 0) {
        m_device = opened.st_dev;
        m_inode = opened.st_ino;
    }
    if (m_readOnly) {
        // In a read transaction, which waits out a writer recovering its log.
        const ReadSnapshot snapshot(*this);
        requireVexelsOwn(m_db.get(), m_file);
        return;
    }
    requireVexelsOwn(m_db.get(), m_file);
    sqlite3* handle = m_db.get();
    // The log and its index stay when the last writer closes, so that readers,
    // which open nothing for writing, can always read through them.
    int persist = 1;
    ::sqlite3_file_control(handle, "main", SQLITE_FCNTL_PERSIST_WAL, &persist);
    // Each commit writes every page it touched whole, to the log and later
    // to the file; a minute of samples touches a handful of pages, so smaller
    // pages write a third less (measured: 5.1 against 3.1 MB an hour). Like
    // auto_vacuum, it only takes effect on a new file.
    m_db.exec("PRAGMA page_size=1024");
    m_db.exec("PRAGMA auto_vacuum=INCREMENTAL");
    m_db.exec("PRAGMA journal_mode=WAL");
    m_db.exec("PRAGMA synchronous=NORMAL");
    // A checkpoint copies every page the log holds back into the file; the
    // tail pages of the tables change every minute, so copying less often
    // writes each of them once for many commits instead of once for few.
    ::sqlite3_wal_autocheckpoint(handle, checkpointPages);
    // The tables and the mark in the header come in one transaction: a writer
    // killed between them would leave tables without the mark, which no
    // later open would take for Vexel's.
    batch([&] {
        m_db.exec(schema);
        if (pragmaValue(handle, "application_id") != applicationId)
            m_db.exec(("PRAGMA application_id=" + std::to_string(applicationId)).c_str());
        if (pragmaValue(handle, "user_version") != schemaVersion)
            m_db.exec(("PRAGMA user_version=" + std::to_string(schemaVersion)).c_str());
    });
}

void HistoryStore::connect() const
{
    sqlite3* handle = nullptr;
    int result = m_readOnly ? Sqlite::openReadOnly(m_file, &handle, Sqlite::waitMilliseconds)
                            : ::sqlite3_open_v2(m_file.c_str(), &handle, writableFlags, nullptr);
    if (result == SQLITE_OK && !m_readOnly) {
        ::sqlite3_busy_timeout(handle, Sqlite::waitMilliseconds);
        result = ::sqlite3_exec(handle, "SELECT count(*) FROM sqlite_schema", nullptr, nullptr, nullptr);
    }
    if (result != SQLITE_OK) {
        const std::string message = openFailure(handle, result);
        ::sqlite3_close(handle);
        throw HistoryError(HistoryError::Kind::open, message);
    }
    m_db = Sqlite::Database(handle);
    ::sqlite3_busy_timeout(handle, Sqlite::waitMilliseconds);
}

void HistoryStore::startRead() const
{
    for (int attempt = 0;; ++attempt) {
        const int result
            = ::sqlite3_exec(m_db.get(), "BEGIN; SELECT count(*) FROM sqlite_schema", nullptr, nullptr, nullptr);
        if (result == SQLITE_OK)
            return;
        const HistoryError error = Sqlite::failure(m_db.get(), result);
        ::sqlite3_exec(m_db.get(), "ROLLBACK", nullptr, nullptr, nullptr);
        if (attempt > 0 || !m_readOnly || !Sqlite::transient(result))
            throw error;
        // The old connection goes first: a second one in this process would
        // share its view of the index. The new one waits out a writer's
        // recovery; when it cannot connect, that error is the answer.
        m_db = Sqlite::Database();
        connect();
    }
}

void HistoryStore::append(const SysPoint& sys, std::vector<AppPoint> apps)
{
    std::stable_sort(apps.begin(), apps.end(), [](const AppPoint& a, const AppPoint& b) { return a.cpu > b.cpu; });
    insert(HistoryTier::raw, sys, Downsample::select(apps, appsPerSample));
}

void HistoryStore::insert(HistoryTier tier, const SysPoint& sys, const std::vector<AppPoint>& apps)
{
    if (!m_insertSys) {
        m_insertSys
            = Sqlite::Statement(m_db.get(), "INSERT OR REPLACE INTO sys VALUES(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)");
        m_insertApp = Sqlite::Statement(m_db.get(), "INSERT OR REPLACE INTO apps VALUES(?,?,?,?,?,?,?,?,?,?,?)");
    }
    const auto& s = m_insertSys;
    s.reset();
    s.bind(1, tierValue(tier));
    s.bind(2, sys.t);
    s.bind(3, sys.dur);
    s.bind(4, sys.cpu);
    s.bind(5, sys.cpuMax);
    s.bind(6, sys.mem);
    s.bind(7, sys.memMax);
    s.bind(8, static_cast<long long>(sys.pressure));
    s.bind(9, sys.swap);
    s.bind(10, sys.diskR);
    s.bind(11, sys.diskW);
    s.bind(12, sys.netIn);
    s.bind(13, sys.netOut);
    s.bind(14, sys.gpu);
    s.bind(15, sys.gpuMax);
    s.bind(16, sys.power);
    s.bind(17, sys.battery);
    s.bind(18, static_cast<long long>(sys.thermal));
    s.run();
    const auto& a = m_insertApp;
    for (const auto& app : apps) {
        a.reset();
        a.bind(1, tierValue(tier));
        a.bind(2, app.t);
        a.bind(3, app.app);
        a.bind(4, app.name);
        a.bind(5, app.dur);
        a.bind(6, app.cpu);
        a.bind(7, app.cpuMax);
        a.bind(8, app.mem);
        a.bind(9, app.energy);
        a.bind(10, app.disk);
        a.bind(11, app.net);
        a.run();
    }
}

Sqlite::Statement HistoryStore::rangeQuery(const std::string& sql, HistoryTier tier, double from, double to) const
{
    Sqlite::Statement query(m_db.get(), sql);
    query.bind(1, tierValue(tier));
    query.bind(2, from);
    query.bind(3, to);
    return query;
}

std::vector<SysPoint> HistoryStore::points(HistoryTier tier, double from, double to) const
{
    const auto query = rangeQuery(
        "SELECT t,dur,cpu,cpu_max,mem,mem_max,pressure,swap,disk_r,disk_w,net_in,net_out,gpu,gpu_max,power,battery,"
        "thermal FROM sys WHERE tier = ? AND t >= ? AND t < ? ORDER BY t",
        tier, from, to);
    std::vector<SysPoint> result;
    while (query.next()) {
        SysPoint p;
        p.t = query.real(0);
        p.dur = query.real(1);
        p.cpu = query.real(2);
        p.cpuMax = query.real(3);
        p.mem = query.real(4);
        p.memMax = query.real(5);
        p.pressure = query.integer(6);
        p.swap = query.real(7);
        p.diskR = query.real(8);
        p.diskW = query.real(9);
        p.netIn = query.real(10);
        p.netOut = query.real(11);
        p.gpu = query.optionalReal(12);
        p.gpuMax = query.optionalReal(13);
        p.power = query.optionalReal(14);
        p.battery = query.optionalReal(15);
        p.thermal = query.integer(16);
        result.push_back(p);
    }
    return result;
}

std::vector<AppPoint> HistoryStore::appPoints(HistoryTier tier, double from, double to) const
{
    const auto query = rangeQuery(
        "SELECT t,app,name,dur,cpu,cpu_max,mem,energy,disk,net FROM apps WHERE tier = ? AND t >= ? AND t < ? ORDER BY "
        "t",
        tier, from, to);
    std::vector<AppPoint> result;
    while (query.next()) {
        result.push_back(AppPoint{query.real(0), query.real(3), query.text(1), query.text(2), query.real(4),
            query.real(5), query.real(6), query.real(7), query.real(8), query.real(9)});
    }
    return result;
}

void HistoryStore::erase(HistoryTier tier, double before)
{
    if (!std::isfinite(before))
        return;
    for (const char* table : {"sys", "apps"}) {
        const Sqlite::Statement remove(m_db.get(), std::string("DELETE FROM ") + table + " WHERE tier = ? AND t < ?");
        remove.bind(1, tierValue(tier));
        remove.bind(2, before);
        remove.run();
    }
}

std::optional<double> HistoryStore::meta(const std::string& key) const
{
    const Sqlite::Statement query(m_db.get(), "SELECT value FROM meta WHERE key = ?");
    query.bind(1, key);
    if (!query.next() || query.isNull(0))
        return std::nullopt;
    return TextScan::toDouble(query.text(0));
}

void HistoryStore::setMeta(const std::string& key, double value)
{
    const Sqlite::Statement write(m_db.get(), "INSERT OR REPLACE INTO meta(key, value) VALUES(?, ?)");
    write.bind(1, key);
    // The shortest text that reads back as the same double.
    std::string text = cformat("%.15g", value);
    if (TextScan::toDouble(text) != value)
        text = cformat("%.17g", value);
    write.bind(2, text);
    write.run();
}

std::optional<double> HistoryStore::watermark(HistoryTier tier) const
{
    return meta("rolled" + std::to_string(tierValue(tier)));
}

void HistoryStore::batch(const std::function<void()>& body)
{
    if (m_txDepth >= 1) {
        ++m_txDepth;
        try {
            body();
        } catch (...) {
            --m_txDepth;
            throw;
        }
        --m_txDepth;
        return;
    }
    m_db.exec("BEGIN");
    m_txDepth = 1;
    try {
        body();
        m_db.exec("COMMIT");
    } catch (...) {
        try {
            m_db.exec("ROLLBACK");
        } catch (const HistoryError&) {
            // The transaction may already be gone; the original failure is what matters.
        }
        m_txDepth = 0;
        throw;
    }
    m_txDepth = 0;
}

std::optional<double> HistoryStore::scalar(const std::string& sql, std::optional<HistoryTier> tier) const
{
    const Sqlite::Statement query(m_db.get(), sql);
    if (tier)
        query.bind(1, tierValue(*tier));
    if (!query.next() || query.isNull(0))
        return std::nullopt;
    return query.real(0);
}

std::optional<double> HistoryStore::earliest(HistoryTier tier) const
{
    return scalar("SELECT MIN(t) FROM sys WHERE tier = ?", tier);
}

void HistoryStore::enforceCap()
{
    for (int day = 0; day < capDaysPerCompaction; ++day) {
        if (maxBytes >= pageBytes())
            return;
        const auto oldest = earliest(HistoryTier::hour);
        if (!oldest)
            return;
        erase(HistoryTier::hour, *oldest + 86400);
    }
}

int64_t HistoryStore::pragma(const char* name) const
{
    return static_cast<int64_t>(scalar(std::string("PRAGMA ") + name, std::nullopt).value_or(0));
}

int64_t HistoryStore::pageBytes() const
{
    return (pragma("page_count") - pragma("freelist_count")) * pragma("page_size");
}

int64_t HistoryStore::usedBytes() const
{
    try {
        return pageBytes();
    } catch (const HistoryError&) {
        return 0;
    }
}

bool HistoryStore::goneFromItsPath() const
{
    struct stat now { };
    if (::stat(m_file.c_str(), &now) != 0)
        return errno == ENOENT;
    return now.st_dev != m_device || now.st_ino != m_inode;
}

void HistoryStore::emptyLog()
{
    if (!m_readOnly)
        ::sqlite3_exec(m_db.get(), "PRAGMA wal_checkpoint(TRUNCATE)", nullptr, nullptr, nullptr);
}

int64_t HistoryStore::fileBytes() const
{
    return sizeOf(m_file.string()) + sizeOf(m_file.string() + "-wal");
}

void HistoryStore::eraseAll()
{
    m_db.exec("DELETE FROM sys; DELETE FROM apps; DELETE FROM meta WHERE key LIKE 'rolled%';");
    m_db.exec("PRAGMA incremental_vacuum");
}

std::optional<double> HistoryStore::firstSample() const
{
    std::optional<double> first;
    try {
        for (const auto tier : allHistoryTiers) {
            if (const auto t = earliest(tier); t && (!first || *t < *first))
                first = t;
        }
    } catch (const HistoryError&) {
        return std::nullopt;
    }
    return first;
}

int64_t HistoryStore::rowCount(HistoryTier tier, HistoryTable table) const
{
    const std::string name = table == HistoryTable::apps ? "apps" : "sys";
    try {
        return static_cast<int64_t>(scalar("SELECT COUNT(*) FROM " + name + " WHERE tier = ?", tier).value_or(0));
    } catch (const HistoryError&) {
        return 0;
    }
}

} // namespace vexel
