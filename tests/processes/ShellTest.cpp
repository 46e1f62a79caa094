#include "processes/Shell.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

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

bool processExists(pid_t pid)
{
    return ::kill(pid, 0) == 0;
}

} // namespace

TEST(Shell, RunsWithArgumentsAndCollectsStandardOutput)
{
    EXPECT_EQ(Shell::run("/bin/echo", {"a b", "c"}, 5), "a b c\n");
    // Arguments are never interpreted by a shell.
    EXPECT_EQ(Shell::run("/bin/echo", {"$HOME;", "`id`"}, 5), "$HOME; `id`\n");
    const Script both("both", "echo out; echo err >&2; exit 3");
    EXPECT_EQ(Shell::run(both.path(), {}, 5), "out\n"); // standard error is dropped, the exit status not judged
    const Script reads("reads", "cat; echo done");
    EXPECT_EQ(Shell::run(reads.path(), {}, 5), "done\n"); // standard input is empty
    const std::string big(200000, 'x');
    const Script large("large", "head -c 200000 /dev/zero | tr '\\0' x");
    EXPECT_EQ(Shell::run(large.path(), {}, 5), big);
}

TEST(Shell, ToolsSpeakTheCLocaleUnlessToldOtherwise)
{
    const Script locale("locale", "echo \"$LC_ALL|$EXTRA\"");
    ::unsetenv("LC_ALL");
    EXPECT_EQ(Shell::run(locale.path(), {}, 5), "C|\n");
    EXPECT_EQ(Shell::run(locale.path(), {}, 5, {{"EXTRA", "1"}, {"LC_ALL", "fr_FR.UTF-8"}}), "fr_FR.UTF-8|1\n");
}

TEST(Shell, NothingForWhatCannotRun)
{
    EXPECT_FALSE(Shell::run("/nonexistent/tool", {}, 1));
    EXPECT_FALSE(Shell::run("/etc/hostname", {}, 1)); // not executable
    EXPECT_FALSE(Shell::run("/usr/bin", {}, 1)); // a folder
}

TEST(Shell, ATimeOutEndsTheToolAndItsChildrenWithinBounds)
{
    const Script hang("hang", "echo $$; sleep 30 & echo $!; wait");
    const auto started = std::chrono::steady_clock::now();
    EXPECT_FALSE(Shell::run(hang.path(), {}, 0.3));
    const auto took = std::chrono::steady_clock::now() - started;
    EXPECT_LT(took, std::chrono::seconds(3));
    // No child of ours is left: not a zombie, not the script, not its sleep.
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);

    const Script stubborn("stubborn", "trap '' TERM; echo $$ > " + hang.path() + ".pid; sleep 30");
    const auto before = std::chrono::steady_clock::now();
    EXPECT_FALSE(Shell::run(stubborn.path(), {}, 0.2));
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(4));
    std::ifstream pidFile(hang.path() + ".pid");
    pid_t pid = 0;
    pidFile >> pid;
    ASSERT_GT(pid, 0);
    EXPECT_FALSE(processExists(pid)) << "a tool that ignores SIGTERM is killed";
    fs::remove(hang.path() + ".pid");
}

TEST(Shell, FindsToolsInTheUsualFolders)
{
    EXPECT_EQ(Shell::find("sh"), "/usr/bin/sh");
    EXPECT_FALSE(Shell::find("no-such-tool-anywhere"));
    EXPECT_FALSE(Shell::find("../bin/sh"));
    const auto folder = fs::temp_directory_path() / ("vexel-find-" + std::to_string(::getpid()));
    fs::create_directories(folder);
    const Script mine("x", "true");
    fs::copy_file(mine.path(), folder / "sh");
    fs::permissions(folder / "sh", fs::perms::owner_all);
    EXPECT_EQ(Shell::find("sh", {folder.string()}), (folder / "sh").string()); // extra folders come first
    fs::remove_all(folder);
}
