#include "processes/Shell.h"

#include "format/CFormat.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace vexel;
namespace fs = std::filesystem;

namespace {

// A throw-away script, run as a program of its own (never through a shell by Shell itself).
class Script {
public:
    Script(const std::string& name, const std::string& body)
        : m_path(fs::temp_directory_path() / ("vexel-shell-" + std::to_string(::getpid()) + "-" + name))
    {
        std::ofstream(m_path) << "#!/bin/sh\n" << body << "\n";
        fs::permissions(m_path, fs::perms::owner_all);
    }
    ~Script() { fs::remove(m_path); }
    [[nodiscard]] std::string path() const { return m_path.string(); }

private:
    fs::path m_path;
};

// Whether the process `pid` ends (or has ended) within `seconds`, waited for
// on its pidfd, which turns readable when the process exits: an event, not a nap.
bool ends(pid_t pid, int seconds)
{
    const int fd = static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
    if (fd < 0)
        return errno == ESRCH; // gone already
    pollfd exited{fd, POLLIN, 0};
    const bool ended = ::poll(&exited, 1, seconds * 1000) == 1;
    ::close(fd);
    return ended;
}

// The process ids a script wrote into `file`, one per line.
std::vector<pid_t> pidsIn(const std::string& file)
{
    std::ifstream in(file);
    std::vector<pid_t> pids;
    for (pid_t pid = 0; in >> pid;)
        pids.push_back(pid);
    return pids;
}

} // namespace

TEST(Shell, RunsWithArgumentsAndCollectsStandardOutput)
{
    EXPECT_EQ(Shell::run("/bin/echo", {"a b", "c"}, 5).output, "a b c\n");
    // Arguments are never interpreted by a shell.
    EXPECT_EQ(Shell::run("/bin/echo", {"$HOME;", "`id`"}, 5).output, "$HOME; `id`\n");
    const Script both("both", "echo out; echo err >&2; exit 3");
    EXPECT_EQ(Shell::run(both.path(), {}, 5).output, "out\n"); // standard error is dropped, the exit status not judged
    const auto kept = Shell::run(both.path(), {}, 5, {.keepErrors = true});
    EXPECT_EQ(kept.output, "out\n");
    EXPECT_EQ(kept.errors, "err\n");
    // Standard error past its cap is read and dropped: the tool still ends, its output whole.
    const Script chatty("chatty", "head -c 1000000 /dev/zero >&2; echo done");
    const auto flood = Shell::run(chatty.path(), {}, 30, {.keepErrors = true});
    EXPECT_EQ(flood.output, "done\n");
    EXPECT_EQ(flood.errors.size(), Shell::errorCap);
    const Script reads("reads", "cat; echo done");
    EXPECT_EQ(Shell::run(reads.path(), {}, 5).output, "done\n"); // standard input is empty
    const std::string big(200000, 'x');
    const Script large("large", "head -c 200000 /dev/zero | tr '\\0' x");
    EXPECT_EQ(Shell::run(large.path(), {}, 5).output, big);
}

TEST(Shell, ToolsSpeakTheCLocaleUnlessToldOtherwise)
{
    const Script locale("locale", "echo \"$LC_ALL|$EXTRA\"");
    ::unsetenv("LC_ALL");
    EXPECT_EQ(Shell::run(locale.path(), {}, 5).output, "C|\n");
    EXPECT_EQ(Shell::run(locale.path(), {}, 5, {.env = {{"EXTRA", "1"}, {"LC_ALL", "fr_FR.UTF-8"}}}).output,
        "fr_FR.UTF-8|1\n");
}

TEST(Shell, NothingForWhatCannotRun)
{
    EXPECT_EQ(Shell::run("/nonexistent/tool", {}, 1).error, "/nonexistent/tool is not an executable file");
    EXPECT_FALSE(Shell::run("/etc/hostname", {}, 1)); // not executable
    EXPECT_FALSE(Shell::run("/usr/bin", {}, 1)); // a folder
}

// A tool that writes without end is stopped at the cap with an error that
// says so, instead of filling memory.
TEST(Shell, OutputPastTheCapIsAnError)
{
    const auto yes = Shell::find("yes");
    ASSERT_TRUE(yes);
    const auto endless = Shell::run(*yes, {}, 60, {.outputCap = 1 << 20});
    EXPECT_FALSE(endless.output);
    EXPECT_EQ(endless.error, *yes + " wrote more than 1048576 bytes and was stopped");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "no child is left behind";
    const Script exact("exact", "head -c 1048576 /dev/zero");
    EXPECT_EQ(Shell::run(exact.path(), {}, 60, {.outputCap = 1 << 20}).output, std::string(1 << 20, '\0'));
}

namespace {

// Runs `script` with time-outs growing until it had the time to write
// `count` process ids into `file` before being stopped; those ids.
std::vector<pid_t> runUntilStopped(const Script& script, const std::string& file, size_t count)
{
    std::vector<pid_t> pids;
    for (const double timeout : {0.3, 1.0, 3.0, 10.0}) {
        fs::remove(file);
        const auto stopped = Shell::run(script.path(), {}, timeout);
        EXPECT_FALSE(stopped.output) << "the time-out ends it without output";
        EXPECT_EQ(stopped.error, script.path() + " didn't finish within " + cformat("%g", timeout) + " seconds");
        pids = pidsIn(file);
        if (pids.size() >= count)
            break;
    }
    return pids;
}

} // namespace

TEST(Shell, ATimeOutEndsTheToolAndItsChildren)
{
    const vexel::testing::TempFolder folder("vexel-shell");
    const std::string pids = (folder.path() / "pids").string();
    // The script and its child write their ids, then hold the output open for long.
    const Script hang("hang", "echo $$ >> " + pids + "; sleep 300 & echo $! >> " + pids + "; wait");
    const auto hung = runUntilStopped(hang, pids, 2);
    ASSERT_EQ(hung.size(), 2u);
    // No child of ours is left: not a zombie, not the script, and its sleep ends too.
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    for (const pid_t pid : hung)
        EXPECT_TRUE(ends(pid, 30)) << pid;

    const Script stubborn("stubborn", "trap '' TERM; echo $$ > " + pids + "; sleep 300");
    const auto ignored = runUntilStopped(stubborn, pids, 1);
    ASSERT_EQ(ignored.size(), 1u);
    EXPECT_TRUE(ends(ignored[0], 30)) << "a tool that ignores SIGTERM is killed";
}

// The app blocks SIGTERM, SIGINT and SIGHUP in every thread (they are taken
// from a signalfd) and may ignore others; a tool it starts must get neither,
// or a time-out's SIGTERM would go unheard and every time-out wait for the kill.
TEST(Shell, ToolsStartWithNoSignalBlockedOrIgnored)
{
    sigset_t blocked;
    sigemptyset(&blocked);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&blocked, signal);
    sigset_t before;
    ASSERT_EQ(::pthread_sigmask(SIG_BLOCK, &blocked, &before), 0);
    const auto previousPipe = std::signal(SIGPIPE, SIG_IGN);
    const auto status = Shell::run("/usr/bin/grep", {"-E", "^Sig(Blk|Ign):", "/proc/self/status"}, 10);
    std::signal(SIGPIPE, previousPipe);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    ASSERT_TRUE(status.output) << status.error;
    // The tool reports its own masks, in hexadecimal, bit n-1 for signal n.
    // (glibc leaves its own two thread signals, 32 and 33, ignored in every
    // child it spawns; no tool uses them.)
    const auto mask = [&](const std::string& name) {
        const auto at = status->find(name + ":\t");
        return at == std::string::npos ? ~0ULL : std::stoull(status->substr(at + name.size() + 2, 16), nullptr, 16);
    };
    EXPECT_EQ(mask("SigBlk"), 0U) << *status;
    EXPECT_EQ(mask("SigIgn") & 0x7fffffffULL, 0U) << *status;
}

TEST(Shell, FindsToolsInTheUsualFolders)
{
    EXPECT_EQ(Shell::find("sh"), "/usr/bin/sh");
    EXPECT_FALSE(Shell::find("no-such-tool-anywhere"));
    EXPECT_FALSE(Shell::find("../bin/sh"));
    const vexel::testing::TempFolder temp("vexel-find");
    const auto& folder = temp.path();
    const Script mine("x", "true");
    fs::copy_file(mine.path(), folder / "sh");
    fs::permissions(folder / "sh", fs::perms::owner_all);
    EXPECT_EQ(Shell::find("sh", {folder.string()}), (folder / "sh").string()); // extra folders come first
}
