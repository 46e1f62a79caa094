// The live reader on this machine, checked against the system's own tools.

#include "io/Files.h"
#include "monitor/Monitor.h"
#include "support/ChildProcess.h"
#include "support/RunTool.h"
#include "system/linux/Diskstats.h"
#include "system/linux/LiveSystemReader.h"
#include "system/linux/NetDev.h"
#include "system/linux/ProcStat.h"
#include "text/TextScan.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <grp.h>
#include <sys/wait.h>
#include <thread>
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

// Bytes written to whole disks and bytes received on counted interfaces, read straight from /proc.
struct RawCounters {
    uint64_t written = 0;
    uint64_t received = 0;
};

RawCounters rawCounters()
{
    RawCounters raw;
    for (const auto& device : Diskstats::parse(Files::read("/proc/diskstats").value_or(""))) {
        const std::string name(device.name);
        if (Files::exists("/sys/block/" + name + "/device"))
            raw.written += device.bytesWritten;
    }
    for (const auto& interface : NetDev::parse(Files::read("/proc/net/dev").value_or(""))) {
        const std::string name(interface.name);
        if (name != "lo" && Files::exists("/sys/class/net/" + name + "/device"))
            raw.received += interface.received;
    }
    return raw;
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

void writeToDisk()
{
    // The build folder rather than /tmp, which may be a RAM disk.
    const auto file = std::filesystem::path(VEXEL_BINARY_DIR) / ("vexel-io-" + std::to_string(::getpid()));
    const int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    ASSERT_GE(fd, 0);
    const std::string block(1 << 20, 'x');
    for (int i = 0; i < 8; ++i)
        ASSERT_EQ(::write(fd, block.data(), block.size()), static_cast<ssize_t>(block.size()));
    ::fsync(fd);
    ::close(fd);
    std::filesystem::remove(file);
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

TEST(LiveMachine, DiskAndNetworkRatesAreBracketedByProcCounters)
{
    LiveSystemReader reader;
    const auto before = rawCounters();
    (void)reader.read(100);
    const auto afterFirst = rawCounters();
    writeToDisk();
    const auto beforeSecond = rawCounters();
    const auto snapshot = reader.read(101); // one second apart by the clock we pass in
    const auto after = rawCounters();

    const auto written = static_cast<uint64_t>(snapshot.disk.writeRate);
    EXPECT_GE(written, beforeSecond.written - afterFirst.written);
    EXPECT_LE(written, after.written - before.written);
    EXPECT_GE(after.written - before.written, 8u << 20) << "the test's own 8 MiB reached the disk";
    const auto received = static_cast<uint64_t>(snapshot.net.inRate);
    EXPECT_GE(received, beforeSecond.received - afterFirst.received);
    EXPECT_LE(received, after.received - before.received);
}

namespace {

// This thread's own processor time, in seconds.
double threadSeconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

} // namespace

// The machine's busy time between two readings covers at least the time this
// thread spent spinning, however long the spin took on a loaded machine.
TEST(LiveMachine, ABusyCoreShowsAsBusy)
{
    LiveSystemReader reader;
    (void)reader.read(1);
    const auto started = std::chrono::steady_clock::now();
    const double spinFrom = threadSeconds();
    volatile unsigned long spin = 0;
    while (threadSeconds() - spinFrom < 0.4)
        spin = spin + 1;
    const double spun = threadSeconds() - spinFrom;
    const auto snapshot = reader.read(2);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - started;
    // The spinning thread may move between cores, so add the cores up: busy
    // fractions of each core over the interval, in core-seconds.
    double busyCores = 0;
    for (const double core : snapshot.cpu.cores)
        busyCores += core;
    const double cores = static_cast<double>(snapshot.coreCount());
    EXPECT_GE(busyCores * elapsed.count(), 0.85 * spun) << busyCores << " cores over " << elapsed.count() << " s";
    EXPECT_GE((snapshot.cpu.user + snapshot.cpu.system) * cores * elapsed.count(), 0.85 * spun);
    EXPECT_LE(snapshot.cpu.user + snapshot.cpu.system, 1.0);
}

namespace {

// As the user nobody, samples the machine at the app's cadence scaled down (a
// tick every half second, everyone's figures every third) and writes the CPU
// rate `pid` had at each tick to `out`, one per line. Runs in a forked child.
[[noreturn]] void sampleAsNobody(pid_t pid, int out)
{
    constexpr uid_t nobody = 65534;
    if (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0)
        ::_exit(2);
    auto monitor = Monitor::live();
    std::string lines;
    for (int tick = 0; tick <= 6; ++tick) {
        const Frame frame = monitor->sample(currentTime(), {.everyone = tick % 3 == 0, .network = false});
        for (const auto& record : frame.records)
            if (record.pid == pid)
                lines += std::to_string(frame.rates.at(ProcKey::of(record)).cpu) + "\n";
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
    }
    const bool written = ::write(out, lines.data(), lines.size()) == static_cast<ssize_t>(lines.size());
    ::_exit(written ? 0 : 3);
}

} // namespace

// Another user's busy process reads busy whichever readings a tick takes: its
// time comes with every tick, and a tick without it would keep its baseline.
TEST(LiveMachine, AnotherUsersBusyLoopReadsBusyAtTheAppsCadence)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to run a process as another user; CI runs as root";
    vexel::testing::ChildProcess busy({"python3", "-c", "while True: pass"});
    ASSERT_NE(busy.pid(), 0);
    const auto sampled = vexel::testing::runForked([&] { sampleAsNobody(busy.pid(), 1); });
    ASSERT_TRUE(WIFEXITED(sampled.status) && WEXITSTATUS(sampled.status) == 0) << "sampler status " << sampled.status;
    const std::string& text = sampled.output;

    std::vector<double> rates;
    TextScan::forEachLine(text, [&](std::string_view line) { rates.push_back(std::stod(std::string(line))); });
    ASSERT_EQ(rates.size(), 7u) << text;
    // The first tick is a baseline; after it the loop reads busy at every
    // tick, where a lost baseline reads exactly 0. Other tests share the two
    // cores (under the sanitizers one tick saw under 5 %), so a tick's share
    // varies: each must be above 0 by more than rounding, and the loop must
    // average a good part of a core.
    double sum = 0;
    for (size_t tick = 1; tick < rates.size(); ++tick) {
        EXPECT_GT(rates[tick], 0.01) << "tick " << tick << (tick % 3 == 0 ? " (everyone)" : " (own)");
        sum += rates[tick];
    }
    EXPECT_GT(sum / static_cast<double>(rates.size() - 1), 0.25) << text;
}
