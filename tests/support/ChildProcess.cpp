#include "support/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace vexel::testing {

ChildProcess::ChildProcess(const std::vector<std::string>& argv, const Options& options)
{
    int pipeFds[2] = {-1, -1};
    if (argv.empty() || (options.readOutput && ::pipe(pipeFds) != 0))
        return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    bool ready = true;
    if (!options.folder.empty())
        ready = posix_spawn_file_actions_addchdir_np(&actions, options.folder.c_str()) == 0;
    if (options.readOutput) {
        ready = ready && posix_spawn_file_actions_adddup2(&actions, pipeFds[1], 1) == 0
            && (!options.readErrors || posix_spawn_file_actions_adddup2(&actions, pipeFds[1], 2) == 0)
            && posix_spawn_file_actions_addclose(&actions, pipeFds[0]) == 0;
    }
    std::vector<char*> args;
    for (const auto& arg : argv)
        args.push_back(const_cast<char*>(arg.c_str()));
    args.push_back(nullptr);
    if (!ready || posix_spawnp(&m_pid, args[0], &actions, nullptr, args.data(), environ) != 0)
        m_pid = 0;
    posix_spawn_file_actions_destroy(&actions);
    if (options.readOutput) {
        ::close(pipeFds[1]);
        m_output = pipeFds[0];
    }
}

ChildProcess::~ChildProcess()
{
    if (m_pid > 0 && !m_reaped)
        (void)stop(SIGKILL);
    if (m_output >= 0)
        ::close(m_output);
}

std::string ChildProcess::readLine()
{
    std::string line;
    char c = 0;
    while (m_output >= 0) {
        const ssize_t got = ::read(m_output, &c, 1);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0 || c == '\n')
            break;
        line += c;
    }
    return line;
}

int ChildProcess::stop(int signal)
{
    if (m_pid > 0 && !m_reaped)
        ::kill(m_pid, signal);
    return wait();
}

int ChildProcess::wait()
{
    int status = 0;
    if (m_pid <= 0 || m_reaped)
        return status;
    while (::waitpid(m_pid, &status, 0) < 0 && errno == EINTR) { }
    m_reaped = true;
    return status;
}

std::optional<int> ChildProcess::waitUpTo(int milliseconds)
{
    if (m_pid > 0 && !m_reaped) {
        const int fd = static_cast<int>(::syscall(SYS_pidfd_open, m_pid, 0));
        pollfd ended{fd, POLLIN, 0};
        const bool done = fd >= 0 && ::poll(&ended, 1, milliseconds) == 1;
        if (fd >= 0)
            ::close(fd);
        if (!done)
            return std::nullopt;
    }
    return wait();
}

ForkedRun runForked(const std::function<void()>& child)
{
    ForkedRun run;
    int output[2];
    if (::pipe(output) != 0)
        return run;
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::dup2(output[1], 1);
        ::close(output[0]);
        child();
        ::_exit(127);
    }
    ::close(output[1]);
    char chunk[4096];
    for (ssize_t got; (got = ::read(output[0], chunk, sizeof chunk)) > 0;)
        run.output.append(chunk, static_cast<size_t>(got));
    ::close(output[0]);
    if (pid > 0)
        while (::waitpid(pid, &run.status, 0) < 0 && errno == EINTR) { }
    return run;
}

} // namespace vexel::testing
