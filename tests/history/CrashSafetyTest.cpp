// A writer process is killed with SIGKILL at random moments while it appends
// and compacts; after every kill the file must be whole and consistent, and a
// reader in another process must never see an error.

#include "history/HistoryStore.h"
#include "history/Sqlite.h"
#include "support/ChildProcess.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <set>
#include <sys/wait.h>
#include <thread>

using namespace vexel;
using vexel::testing::ChildProcess;
namespace fs = std::filesystem;

namespace {

const std::string workerBinary = std::string(VEXEL_BINARY_DIR) + "/tests/history_worker";

// The worker in one of its parts; its output comes to the test.
ChildProcess worker(const std::string& part, const fs::path& file, std::vector<std::string> more = {})
{
    std::vector<std::string> argv{workerBinary, part, file.string()};
    argv.insert(argv.end(), more.begin(), more.end());
    return ChildProcess(argv, {{}, true});
}

std::string integrity(const fs::path& file)
{
    sqlite3* handle = nullptr;
    ::sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READONLY, nullptr);
    const Sqlite::Database db(handle);
    const Sqlite::Statement check(db.get(), "PRAGMA integrity_check");
    return check.next() ? check.text(0) : "no answer";
}

// Every finer point below a tier's watermark has its bucket in that tier, and
// nothing in the tier lies at or past the watermark.
void expectWatermarksMatchRows(const HistoryStore& store)
{
    for (const auto target : {HistoryTier::minute, HistoryTier::tenMinutes, HistoryTier::hour}) {
        const auto mark = store.watermark(target);
        const auto rows = store.points(target, 0, 1e12);
        if (!mark) {
            EXPECT_TRUE(rows.empty());
            continue;
        }
        std::set<double> buckets;
        for (const auto& row : rows) {
            EXPECT_LT(row.t, *mark);
            buckets.insert(row.t);
        }
        const double size = bucketSeconds(target);
        for (const auto& source : store.points(*finer(target), 0, *mark))
            ASSERT_TRUE(buckets.contains(std::floor(source.t / size) * size)) << "tier " << static_cast<int>(target);
    }
}

} // namespace

TEST(CrashSafety, TwoHundredKillsLeaveAWholeConsistentFile)
{
    const vexel::testing::TempFolder folder("vexel-crash");
    const auto file = folder.path() / "history.sqlite";
    {
        HistoryStore create(file, HistoryAccess::readWrite);
    }
    // Kills at random moments, the same ones each run.
    std::mt19937 random(20261122);
    std::uniform_int_distribution<int> wait(2, 40);
    int readerFailures = 0;
    for (int kill = 0; kill < 200; ++kill) {
        ChildProcess writer = worker("write", file);
        ChildProcess reader = worker("read", file, {"10"});
        // Every other writer is killed at a random moment after its first
        // commit, so that the file grows however slow the start (a sanitizer
        // build takes longer than the longest wait to get there); the others
        // at a random moment from their start, opening and recovering the log included.
        if (kill % 2 == 0) {
            ASSERT_EQ(writer.readLine(), "committed");
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(wait(random)));
        ASSERT_TRUE(WIFSIGNALED(writer.stop(SIGKILL))) << "the writer must still be running when it is killed";
        const int status = reader.wait();
        readerFailures += WIFEXITED(status) && WEXITSTATUS(status) == 0 ? 0 : 1;
        if (kill % 20 == 19) {
            ASSERT_EQ(integrity(file), "ok") << "after kill " << kill + 1;
            const HistoryStore store(file, HistoryAccess::readOnly);
            expectWatermarksMatchRows(store);
        }
    }
    EXPECT_EQ(readerFailures, 0);
    const HistoryStore store(file, HistoryAccess::readOnly);
    EXPECT_EQ(integrity(file), "ok");
    expectWatermarksMatchRows(store);
    EXPECT_GT(store.rowCount(HistoryTier::raw, HistoryTable::sys), 0);
}

// A writer killed while it rewrites the shared index of its log leaves the
// index unusable. A reader that opened while the writer lived trusts that
// index and cannot repair it; it must still read every committed row.
TEST(CrashSafety, AReaderOutlivesAWriterThatDiedRewritingItsIndex)
{
    const vexel::testing::TempFolder folder("vexel-index");
    const auto file = folder.path() / "history.sqlite";
    {
        HistoryStore create(file, HistoryAccess::readWrite);
    }
    ChildProcess writer = worker("write", file);
    ASSERT_EQ(writer.readLine(), "committed");
    const HistoryStore reader(file, HistoryAccess::readOnly);
    ASSERT_FALSE(reader.series(HistoryTier::raw, 0, 1e12).empty()); // read through the live writer's index
    (void)writer.stop(SIGKILL);
    const auto before = reader.series(HistoryTier::raw, 0, 1e12).size();
    ASSERT_GT(before, 0u);
    // Both copies of the index header, as a writer killed mid-way may leave them.
    const int index = ::open((file.string() + "-shm").c_str(), O_WRONLY);
    ASSERT_GE(index, 0);
    const std::string zeros(96, '\0');
    ASSERT_EQ(::pwrite(index, zeros.data(), zeros.size(), 0), static_cast<ssize_t>(zeros.size()));
    ::close(index);
    EXPECT_GE(reader.series(HistoryTier::raw, 0, 1e12).size(), before);
}
