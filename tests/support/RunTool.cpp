#include "support/RunTool.h"

#include <cstdio>
#include <cstring>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace vexel::testing {

namespace {

// This process's environment with `overrides` put in.
std::vector<std::string> environmentWith(const std::map<std::string, std::string>& overrides)
{
    std::vector<std::string> entries;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string text = *entry;
        if (!overrides.contains(text.substr(0, text.find('='))))
            entries.push_back(text);
    }
    for (const auto& [name, value] : overrides)
        entries.push_back(name + "=" + value);
    return entries;
}

std::vector<char*> pointers(const std::vector<std::string>& strings)
{
    std::vector<char*> list;
    for (const auto& text : strings)
        list.push_back(const_cast<char*>(text.c_str()));
    list.push_back(nullptr);
    return list;
}

std::string readAll(int fd)
{
    std::string text;
    char buffer[4096];
    ssize_t got = 0;
    while ((got = ::read(fd, buffer, sizeof buffer)) > 0)
        text.append(buffer, static_cast<size_t>(got));
    return text;
}

// Standard input and standard error go through unnamed temporary files, so
// only standard output needs a pipe and nothing can block on a full one.
ToolResult spawn(const std::vector<std::string>& argv, const RunOptions& options)
{
    ToolResult result;
    int pipeFds[2];
    if (argv.empty() || ::pipe(pipeFds) != 0)
        return result;
    std::FILE* input = std::tmpfile();
    std::FILE* errors = std::tmpfile();
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipeFds[1], 1);
    posix_spawn_file_actions_addclose(&actions, pipeFds[0]);
    if (input != nullptr && errors != nullptr) {
        std::fwrite(options.input.data(), 1, options.input.size(), input);
        std::fflush(input);
        std::rewind(input);
        posix_spawn_file_actions_adddup2(&actions, ::fileno(input), 0);
        posix_spawn_file_actions_adddup2(&actions, ::fileno(errors), 2);
    }
    const auto args = pointers(argv);
    const auto environment = environmentWith(options.environment);
    const auto envp = pointers(environment);
    pid_t pid = 0;
    const int spawned = posix_spawnp(&pid, args[0], &actions, nullptr, args.data(), envp.data());
    posix_spawn_file_actions_destroy(&actions);
    ::close(pipeFds[1]);
    if (spawned == 0)
        result.out = readAll(pipeFds[0]);
    ::close(pipeFds[0]);
    if (spawned == 0) {
        int status = 0;
        ::waitpid(pid, &status, 0);
        result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    if (errors != nullptr) {
        std::rewind(errors);
        result.err = readAll(::fileno(errors));
        std::fclose(errors);
    }
    if (input != nullptr)
        std::fclose(input);
    return result;
}

} // namespace

ToolResult runTool(const std::vector<std::string>& argv, const RunOptions& options)
{
    return spawn(argv, options);
}

} // namespace vexel::testing
