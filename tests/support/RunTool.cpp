#include "support/RunTool.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace vexel::testing {

ToolResult runTool(const std::vector<std::string>& argv)
{
    ToolResult result;
    int pipeFds[2];
    if (argv.empty() || ::pipe(pipeFds) != 0)
        return result;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipeFds[1], 1);
    posix_spawn_file_actions_addclose(&actions, pipeFds[0]);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", 0, 0);
    std::vector<char*> args;
    for (const auto& arg : argv)
        args.push_back(const_cast<char*>(arg.c_str()));
    args.push_back(nullptr);
    pid_t pid = 0;
    const int spawned = posix_spawnp(&pid, args[0], &actions, nullptr, args.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(pipeFds[1]);
    if (spawned != 0) {
        ::close(pipeFds[0]);
        return result;
    }
    char buffer[4096];
    ssize_t got = 0;
    while ((got = ::read(pipeFds[0], buffer, sizeof buffer)) > 0)
        result.out.append(buffer, static_cast<size_t>(got));
    ::close(pipeFds[0]);
    int status = 0;
    ::waitpid(pid, &status, 0);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

} // namespace vexel::testing
