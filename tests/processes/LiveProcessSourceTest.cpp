#include "processes/linux/LiveProcessSource.h"

#include "io/Files.h"
#include "processes/Shell.h"
#include "processes/linux/ProcPidFiles.h"
#include "support/ChildProcess.h"
#include "support/ProcessChecks.h"
#include "support/SleepingChildren.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace vexel;
using vexel::testing::listsEvery;
using vexel::testing::statFilesHeldOf;
namespace fs = std::filesystem;

namespace {

const ProcRecord* byPid(const std::vector<ProcRecord>& records, int32_t pid)
{
    for (const auto& record : records) {
        if (record.pid == pid)
            return &record;
    }
    return nullptr;
}

LiveProcessSource fixtureSource(uint32_t myUID)
{
    return LiveProcessSource(std::string(VEXEL_FIXTURES) + "/linux/proc-tree/proc", myUID, 1000.0, 100, 4096);
}

} // namespace

TEST(LiveProcessSourceOnFixtures, EveryProcessWithWhatItsOwnerMayRead)
{
    auto source = fixtureSource(0);
    const auto records = source.snapshot(ProcessScope::own);
    ASSERT_EQ(records.size(), 6u); // "self" and "sys" are not processes

    const auto* weird = byPid(records, 13233);
    ASSERT_NE(weird, nullptr);
    EXPECT_EQ(weird->name, "we ird) (x");
    EXPECT_EQ(weird->ppid, 1);
    EXPECT_EQ(weird->uid, 0u);
    EXPECT_EQ(weird->path, "/usr/bin/python3.11");
    EXPECT_DOUBLE_EQ(weird->start, 1000.0 + 2344.11);
    EXPECT_DOUBLE_EQ(*weird->cpuTime, 1.58);
    EXPECT_EQ(weird->memory, 55904u * 1024); // RssAnon, no swap in use
    EXPECT_TRUE(weird->memoryIsFootprint);
    EXPECT_EQ(weird->diskRead, 2514944u);
    EXPECT_EQ(weird->diskWrite, 4014080u);
    EXPECT_EQ(weird->cgroup, "/");
    EXPECT_EQ(source.cwd(13233), "/tmp/cap"); // " (deleted)" is stripped
    EXPECT_FALSE(source.cwd(2));

    const auto* zombie = byPid(records, 13275);
    ASSERT_NE(zombie, nullptr);
    EXPECT_TRUE(zombie->zombie);
    EXPECT_FALSE(zombie->cpuTime);
    EXPECT_FALSE(zombie->path);

    const auto* kthreadd = byPid(records, 2);
    ASSERT_NE(kthreadd, nullptr);
    EXPECT_TRUE(kthreadd->kernelThread);
    EXPECT_EQ(kthreadd->memory, 0u); // kernel threads have CPU time but no memory
    EXPECT_FALSE(kthreadd->path);

    const auto* init = byPid(records, 1);
    ASSERT_NE(init, nullptr);
    EXPECT_FALSE(init->diskRead); // its io file could not be read
    EXPECT_FALSE(init->path);

    // A supervisor run from a sealed memfd: its exe is no file and its comm is the
    // memfd's name, so argv[0] names it.
    const auto* fromMemory = byPid(records, 1210);
    ASSERT_NE(fromMemory, nullptr);
    EXPECT_EQ(fromMemory->name, "binary_backend");
    EXPECT_FALSE(fromMemory->path);

    // The kernel cut its name to "rust-analyzer-p"; the executable has it whole.
    const auto* longName = byPid(records, 6780);
    ASSERT_NE(longName, nullptr);
    EXPECT_EQ(longName->name, "rust-analyzer-proc-macro-srv");
}

TEST(LiveProcessSourceOnFixtures, OtherUsersMemoryOnlyForEveryoneTheirTimeAlways)
{
    auto source = fixtureSource(1000); // every fixture process belongs to root
    auto records = source.snapshot(ProcessScope::own);
    EXPECT_DOUBLE_EQ(*byPid(records, 13233)->cpuTime, 1.58);
    EXPECT_FALSE(byPid(records, 13233)->memory);
    EXPECT_FALSE(byPid(records, 13275)->cpuTime); // a zombie's time is its parent's now
    records = source.snapshot(ProcessScope::everyone);
    EXPECT_DOUBLE_EQ(*byPid(records, 13233)->cpuTime, 1.58);
    EXPECT_EQ(byPid(records, 13233)->memory, 55904u * 1024);
    EXPECT_FALSE(byPid(records, 13233)->diskRead); // disk bytes are the owner's only
    EXPECT_EQ(source.knownCount(), 6u);
}

TEST(LiveProcessSourceOnFixtures, AMissingProcFolderGivesAnEmptyList)
{
    LiveProcessSource source("/nonexistent/proc", 0, 0, 100, 4096);
    EXPECT_TRUE(source.snapshot(ProcessScope::everyone).empty());
    EXPECT_FALSE(source.cwd(1));
}

TEST(LiveProcessSourceLive, SeesItselfItsChildrenAndAZombie)
{
    LiveProcessSource source;
    const pid_t zombie = ::fork();
    if (zombie == 0)
        ::_exit(0);
    // Wait until it has exited, leaving it unreaped: a zombie until the end of the test.
    siginfo_t exited{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(zombie), &exited, WEXITED | WNOWAIT), 0);
    struct Reaper {
        pid_t pid;
        ~Reaper() { ::waitpid(pid, nullptr, 0); }
    } const reaper{zombie};
    const auto records = source.snapshot(ProcessScope::own);
    const auto* self = byPid(records, ::getpid());
    ASSERT_NE(self, nullptr);
    EXPECT_EQ(self->uid, ::geteuid());
    ASSERT_TRUE(self->path);
    EXPECT_EQ(*self->path, fs::read_symlink("/proc/self/exe").string());
    EXPECT_GT(*self->memory, 0u);
    EXPECT_TRUE(self->diskRead);
    EXPECT_NEAR(self->start, static_cast<double>(::time(nullptr)), 3600.0);
    const auto* child = byPid(records, zombie);
    ASSERT_NE(child, nullptr);
    EXPECT_TRUE(child->zombie);
    EXPECT_EQ(child->ppid, ::getpid());
    EXPECT_EQ(source.cwd(::getpid()), fs::current_path().string());
    const auto kernel = std::count_if(records.begin(), records.end(), [](const auto& r) { return r.kernelThread; });
    EXPECT_GT(kernel, 0) << "kernel threads are listed";

    // The start time is stable from reading to reading: the key must not drift.
    const auto again = source.snapshot(ProcessScope::own);
    EXPECT_EQ(ProcKey::of(*byPid(again, ::getpid())), ProcKey::of(*self));
}

// An AppImage's program runs from a fresh /tmp/.mount_<letters><random>
// folder each launch; the file it came from is in its environment.
TEST(LiveProcessSourceLive, AnAppImagesFileFromItsEnvironment)
{
    const fs::path mount = fs::path("/tmp") / (".mount_Vexel" + std::to_string(::getpid() % 1000000));
    fs::create_directories(mount);
    struct Remove {
        fs::path folder;
        ~Remove() { fs::remove_all(folder); }
    } const removal{mount};
    fs::copy_file("/bin/sleep", mount / "sleep");
    const std::string image = "APPIMAGE=/home/alice/Applications/Vexel-Test.AppImage";
    const std::string program = (mount / "sleep").string();
    char* argv[] = {const_cast<char*>(program.c_str()), const_cast<char*>("30"), nullptr};
    char* envp[] = {const_cast<char*>("PATH=/usr/bin:/bin"), const_cast<char*>(image.c_str()), nullptr};
    pid_t pid = 0;
    ASSERT_EQ(::posix_spawn(&pid, program.c_str(), nullptr, nullptr, argv, envp), 0);
    struct Stop {
        pid_t pid;
        ~Stop()
        {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, nullptr, 0);
        }
    } const stop{pid};
    // glibc's posix_spawn returns once the child has run the program.
    LiveProcessSource source;
    const auto records = source.snapshot(ProcessScope::own);
    const ProcRecord* found = byPid(records, pid);
    ASSERT_NE(found, nullptr);
    ASSERT_EQ(found->path, program);
    EXPECT_EQ(found->appImage, "/home/alice/Applications/Vexel-Test.AppImage");
    EXPECT_FALSE(found->flatpakApp);
    EXPECT_FALSE(byPid(records, ::getpid())->appImage); // not an AppImage's
}

// When the program runs out of descriptors while it runs (a limit lowered,
// a leak elsewhere), the source lets go of those it keeps and reads on.
TEST(LiveProcessSourceLive, RunningOutOfDescriptorsGivesTheKeptOnesBack)
{
    DescriptorBudget budget(100000);
    vexel::testing::SleepingChildren before(300);
    LiveProcessSource source("/proc", ::geteuid(), 0, 100, 4096, &budget);
    ASSERT_TRUE(listsEvery(source.snapshot(ProcessScope::everyone), before.pids()));
    const size_t kept = budget.inUse();
    ASSERT_GE(kept, 300u);

    rlimit saved{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &saved), 0);
    struct Restore {
        rlimit limit;
        ~Restore() { ::setrlimit(RLIMIT_NOFILE, &limit); }
    } const restore{saved};
    const rlimit low{Files::list("/proc/self/fd").size() + 4, saved.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &low), 0);
    vexel::testing::SleepingChildren after(50);
    const auto records = source.snapshot(ProcessScope::everyone);
    EXPECT_TRUE(listsEvery(records, before.pids()));
    EXPECT_TRUE(listsEvery(records, after.pids()));
    EXPECT_LT(budget.limit(), kept) << "it keeps fewer from now on";
}

// A kept descriptor of an ended process answers ESRCH even when its pid now
// names another: the new process is read as new. The pid is handed on for
// real, by setting the kernel's last pid (root only).
TEST(LiveProcessSourceLive, APidGivenToANewProcessIsReadAsThatProcess)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to set /proc/sys/kernel/ns_last_pid; CI runs as root";
    LiveProcessSource source;
    const auto sleep = Files::realPath("/bin/sleep");
    for (int attempt = 0; attempt < 20; ++attempt) {
        std::optional<vexel::testing::SleepingChildren> first(std::in_place, 1);
        const pid_t pid = first->pids().front();
        const auto before = source.snapshot(ProcessScope::own);
        ASSERT_TRUE(listsEvery(before, {pid}));
        ASSERT_EQ(statFilesHeldOf({pid}), 1u);
        first.reset();
        std::ofstream("/proc/sys/kernel/ns_last_pid") << pid - 1;
        vexel::testing::ChildProcess second({"sleep", "30"});
        if (second.pid() != pid)
            continue; // another process took the number first: try again
        const auto after = source.snapshot(ProcessScope::own);
        const auto* record = byPid(after, pid);
        ASSERT_NE(record, nullptr) << "the process that took the number was missed";
        EXPECT_EQ(record->name, "sleep");
        EXPECT_EQ(record->path, sleep);
        EXPECT_GT(record->start, byPid(before, pid)->start - 1);
        EXPECT_EQ(statFilesHeldOf({pid}), 1u);
        return;
    }
    FAIL() << "no pid was handed on in 20 tries";
}

// An idle single-threaded process costs a look at its schedstat, not a read
// of its stat; one that runs is read every time, and one whose parent ended
// (handed to another without running) is read for its new parent.
TEST(LiveProcessSourceLive, OnlyProcessesThatRanOrMovedAreReadAgain)
{
    ASSERT_EQ(::prctl(PR_SET_CHILD_SUBREAPER, 1), 0); // orphans come to this process, to be reaped
    struct Unreap {
        ~Unreap() { ::prctl(PR_SET_CHILD_SUBREAPER, 0); }
    } const unreap;
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const pid_t parent = ::fork();
    if (parent == 0) {
        const pid_t child = ::fork();
        if (child == 0) {
            ::pause();
            ::_exit(0);
        }
        (void)!::write(ends[1], &child, sizeof child);
        ::pause();
        ::_exit(0);
    }
    pid_t orphan = 0;
    ASSERT_EQ(::read(ends[0], &orphan, sizeof orphan), static_cast<ssize_t>(sizeof orphan));
    ::close(ends[0]);
    ::close(ends[1]);
    const pid_t busy = ::fork();
    if (busy == 0) {
        for (;;) { }
    }
    struct Reap {
        std::vector<pid_t> pids;
        ~Reap()
        {
            for (const pid_t pid : pids) {
                ::kill(pid, SIGKILL);
                ::waitpid(pid, nullptr, 0);
            }
        }
    } const reap{{busy, orphan, parent}};
    vexel::testing::SleepingChildren idle(200);

    LiveProcessSource source;
    for (int reading = 0; reading < 3; ++reading)
        (void)source.snapshot(ProcessScope::everyone); // the third knows how long each had run
    const auto reads = source.statReads();
    const auto before = source.snapshot(ProcessScope::everyone);
    EXPECT_LT(source.statReads() - reads, before.size() - 150) << "the idle children's stat files were read";
    ASSERT_NE(byPid(before, orphan), nullptr);
    EXPECT_EQ(byPid(before, orphan)->ppid, parent);

    ::kill(parent, SIGKILL);
    ::waitpid(parent, nullptr, 0);
    // The busy child runs on: wait until it has used two more clock ticks.
    const auto busyTicks = [&] {
        const auto stat = ProcPidFiles::parseStat(Files::read("/proc/" + std::to_string(busy) + "/stat").value_or(""));
        return stat ? static_cast<double>(stat->utime + stat->stime) / 100.0 : 0.0;
    };
    for (int wait = 0; wait < 500 && busyTicks() < *byPid(before, busy)->cpuTime + 0.02; ++wait)
        ::usleep(10'000);
    const auto after = source.snapshot(ProcessScope::everyone);
    ASSERT_NE(byPid(after, orphan), nullptr);
    EXPECT_EQ(byPid(after, orphan)->ppid, ::getpid()) << "an orphan is read for its new parent";
    EXPECT_GT(*byPid(after, busy)->cpuTime, *byPid(before, busy)->cpuTime);
    EXPECT_EQ(byPid(after, idle.pids().front())->cpuTime, byPid(before, idle.pids().front())->cpuTime);
}
