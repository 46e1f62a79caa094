// The live reader on this machine, checked against the system's own tools.

#include "io/Files.h"
#include "support/RunTool.h"
#include "system/linux/LiveSystemReader.h"
#include "system/linux/ProcStat.h"
#include "text/TextScan.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

using namespace vexel;
using vexel::testing::runTool;

namespace {

std::vector<std::string_view> lineStartingWith(const std::string& text, std::string_view start)
{
    std::vector<std::string_view> found;
    TextScan::forEachLine(text, [&](std::string_view line) {
        const auto trimmed = TextScan::trim(line);
        if (found.empty() && trimmed.starts_with(start))
            found = TextScan::words(trimmed);
    });
    return found;
}

// The size and available bytes of the root file system, as df reports them.
std::optional<std::pair<uint64_t, uint64_t>> rootSpace()
{
    const auto df = runTool({"df", "-B1", "--output=size,avail", "/"});
    const std::string values = df.out.substr(df.out.find('\n') + 1);
    const auto words = TextScan::words(values);
    if (df.status != 0 || words.size() != 2)
        return std::nullopt;
    const auto size = TextScan::toU64(words[0]);
    const auto available = TextScan::toU64(words[1]);
    if (!size || !available)
        return std::nullopt;
    return std::pair{*size, *available};
}

} // namespace

TEST(LiveMachine, CoresMemoryAndRootVolumeMatchTheSystemTools)
{
    LiveSystemReader reader;
    const auto snapshot = reader.read(1000);

    // /proc/stat lists the online cores: at least those this process may use
    // (nproc) and at most every configured one (nproc --all).
    const auto usable = runTool({"nproc"});
    const auto configured = runTool({"nproc", "--all"});
    ASSERT_EQ(usable.status, 0);
    const auto cores = static_cast<uint64_t>(snapshot.cpu.cores.size());
    EXPECT_GE(cores, TextScan::toU64(usable.out).value_or(UINT64_MAX));
    EXPECT_LE(cores, TextScan::toU64(configured.out).value_or(0));

    const auto freeOutput = runTool({"free", "-b"});
    const auto free = lineStartingWith(freeOutput.out, "Mem:");
    ASSERT_GE(free.size(), 2u);
    EXPECT_EQ(snapshot.memory.total, TextScan::toU64(free[1]));

    // Free space moves while other programs write, so df asks before and after
    // a fresh reading, and the reading must lie between the two answers.
    const auto before = rootSpace();
    const auto root = LiveSystemReader().read(2000).disk.main();
    const auto after = rootSpace();
    ASSERT_TRUE(root && before && after);
    EXPECT_EQ(root->path, "/");
    EXPECT_EQ(root->total, before->first);
    constexpr uint64_t slack = 1 << 20;
    EXPECT_GE(root->available + slack, std::min(before->second, after->second));
    EXPECT_LE(root->available, std::max(before->second, after->second) + slack);

    const auto load = ProcStat::parseLoadAverage(Files::read("/proc/loadavg").value_or(""));
    ASSERT_TRUE(load);
    EXPECT_NEAR(snapshot.cpu.load1, (*load)[0], 0.5);
    EXPECT_NEAR(snapshot.cpu.load15, (*load)[2], 0.5);
    EXPECT_GT(snapshot.memory.used(), 0u);
    EXPECT_LE(snapshot.memory.used(), snapshot.memory.total);
}
