#pragma once

#include "history/AppPoint.h"
#include "history/HistoryTier.h"
#include "history/Sqlite.h"
#include "history/SysPoint.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace vexel {

// How a store opens its file: to record (creating it), or only to read.
enum class HistoryAccess { readWrite, readOnly };

// The table of a tier's system points, or of its app points.
enum class HistoryTable { sys, apps };

// The recorded history in one SQLite file: system points and the busiest
// apps' points of every sample, in four tiers of resolution. The desktop app
// writes; the command line and the MCP server open the same file read-only
// while it does (write-ahead logging, a 2-second busy time-out).
class HistoryStore {
public:
    // Vexel's mark in the file's header (PRAGMA application_id, "Vexl"), and
    // the version of its tables (PRAGMA user_version) that this build writes
    // and reads.
    static constexpr int applicationId = 0x5665786c;
    static constexpr int schemaVersion = 1;

    // Opens (creating when writable) the file. Only Vexel's history is
    // opened: a file with tables but without Vexel's mark (another
    // program's), or with a newer version than this build knows, is refused
    // with HistoryError (open) naming it, before anything in it changes; an
    // empty file becomes a new history, and an earlier Vexel's unmarked one
    // (its three tables) is marked. A writer makes the file and its log and
    // index the user's alone (0600), and a folder it creates too (0700),
    // whatever the umask. Raises HistoryError (open or sql), or the file
    // system's error when the folder or file cannot be made.
    HistoryStore(std::filesystem::path file, HistoryAccess access);

    // Records one live sample in the raw tier: the system point and the
    // apps worth keeping (Downsample::select with appsPerSample).
    void append(const SysPoint& sys, std::vector<AppPoint> apps);
    // Writes a system point and app points into `tier`, replacing equal keys.
    void insert(HistoryTier tier, const SysPoint& sys, const std::vector<AppPoint>& apps);

    // Rows of a tier with from ≤ t < to, ascending t.
    [[nodiscard]] std::vector<SysPoint> points(HistoryTier tier, double from, double to) const;
    [[nodiscard]] std::vector<AppPoint> appPoints(HistoryTier tier, double from, double to) const;

    // Removes the rows of a tier older than `before`; a cutoff that is not finite removes nothing.
    void erase(HistoryTier tier, double before);

    // A stored number; absent when missing or not a number. Raises when the read fails.
    [[nodiscard]] std::optional<double> meta(const std::string& key) const;
    void setMeta(const std::string& key, double value);
    // How far the tier below has been rolled into `tier` ("rolled1"…).
    [[nodiscard]] std::optional<double> watermark(HistoryTier tier) const;

    // Runs `body` in a transaction; nested batches join the outermost one,
    // which alone commits or rolls back (on any exception from `body`).
    void batch(const std::function<void()>& body);

    // Rolls each finer tier's ended buckets into the next coarser tier, expires
    // old rows (never before they are rolled up) and applies the size cap, in
    // one transaction; then gives up to 256 free pages back to the file system
    // (inside an outer batch, that is left to the caller's `vacuum`).
    void compact(double now, int retentionDays);
    // Gives up to 256 free pages back to the file system; a failure is only
    // put off to the next compaction.
    void vacuum();

    // A tier's points from `from` to `to`, completed past the tier's watermark
    // by regrouping the finer tiers, down to raw samples, all read in one read
    // transaction. A failing read raises HistoryError: a history that cannot
    // be read never passes for an empty one.
    [[nodiscard]] std::vector<SysPoint> series(HistoryTier tier, double from, double to) const;
    [[nodiscard]] std::vector<AppPoint> appSeries(HistoryTier tier, double from, double to) const;
    // The finest rolled tier whose data reaches back to `from` (minute, ten minutes, else hour).
    [[nodiscard]] HistoryTier coveringTier(double from) const;

    struct Totals {
        double diskR = 0;
        double diskW = 0;
        double netIn = 0;
        double netOut = 0;
    };
    // Bytes read, written, received and sent over a period; raises as series does.
    [[nodiscard]] Totals totals(double from, double to) const;

    // Trims the oldest day of hourly data while the file uses more than
    // maxBytes, at most 400 days a time; finer tiers are never trimmed.
    void enforceCap();

    // Whether the path no longer names the file this store has open: it was
    // removed ("rm history.sqlite*") or another file was put in its place,
    // and what is written goes where nobody will read it. False when the
    // path can't be looked at (a folder without permission): not known gone.
    [[nodiscard]] bool goneFromItsPath() const;
    // Before letting go of a file gone from its path: copies the log's pages
    // into the file and empties the log, so that a log left at the path
    // holds nothing SQLite would lay over the file now there. Failures are
    // ignored: the file is gone either way.
    void emptyLog();
    [[nodiscard]] bool readOnly() const { return m_readOnly; }
    [[nodiscard]] const std::filesystem::path& file() const { return m_file; }

    // Bytes in use by pages holding data; 0 when the size cannot be read.
    [[nodiscard]] int64_t usedBytes() const;
    // The database file plus its write-ahead log on disk.
    [[nodiscard]] int64_t fileBytes() const;
    // Deletes every point and watermark (the schema mark stays) and gives the space back.
    void eraseAll();
    // The earliest point of any tier; absent when there is none or it cannot be read.
    [[nodiscard]] std::optional<double> firstSample() const;
    // The rows of a tier in `sys`, or in `apps`; 0 when they cannot be counted.
    [[nodiscard]] int64_t rowCount(HistoryTier tier, HistoryTable table) const;

    int64_t maxBytes = 64'000'000;
    size_t appsPerSample = 8;

private:
    // The first column of a one-row query, bound to `tier` when given; nothing
    // for no row or NULL. Raises when the query fails.
    [[nodiscard]] std::optional<double> scalar(const std::string& sql, std::optional<HistoryTier> tier) const;
    [[nodiscard]] std::optional<double> earliest(HistoryTier tier) const;
    // A query of a tier's rows with from ≤ t < to: tier, from and to are its parameters 1, 2 and 3.
    [[nodiscard]] Sqlite::Statement rangeQuery(const std::string& sql, HistoryTier tier, double from, double to) const;
    void rollUp(HistoryTier target, double now);
    [[nodiscard]] std::vector<SysPoint> stitchedSeries(HistoryTier tier, double from, double to) const;
    [[nodiscard]] std::vector<AppPoint> stitchedAppSeries(HistoryTier tier, double from, double to) const;

    // A read transaction for the readers that take several statements.
    class ReadSnapshot {
    public:
        explicit ReadSnapshot(const HistoryStore& store);
        ~ReadSnapshot();
        ReadSnapshot(const ReadSnapshot&) = delete;
        ReadSnapshot& operator=(const ReadSnapshot&) = delete;

    private:
        const HistoryStore& m_store;
        bool m_open = false;
    };
    void expire(double now, int retentionDays);
    [[nodiscard]] int64_t pragma(const char* name) const;
    // usedBytes, raising when a size cannot be read.
    [[nodiscard]] int64_t pageBytes() const;

    // Opens the connection; raises HistoryError (open) when SQLite cannot.
    void connect() const;
    // Starts a read transaction and takes its snapshot at once, so that no
    // later read in it can be refused; raises when it cannot.
    // A read-only connection can be refused in two ways ("read-only"
    // answers): while the app recovers its log after a crash, and, for a
    // connection opened while the app was running and so trusting its shared
    // index, for good once the app died rewriting that index. A new
    // connection waits out the first and, with no writer alive, reads the log
    // itself in the second; so a refused reader connects again.
    void startRead() const;

    std::filesystem::path m_file;
    bool m_readOnly = false;
    // The file opened, as the file system names it: device and inode.
    dev_t m_device = 0;
    ino_t m_inode = 0;
    // Replaced, never changed, when a reader reconnects: the rows it reads stay the same.
    mutable Sqlite::Database m_db;
    int m_txDepth = 0;
    Sqlite::Statement m_insertSys;
    Sqlite::Statement m_insertApp;
};

} // namespace vexel
