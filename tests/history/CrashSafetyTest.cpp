// A writer process killed with SIGKILL while a reader in this one holds the
// file open.

#include "history/HistoryStore.h"
#include "support/ChildProcess.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <filesystem>

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

} // namespace

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
