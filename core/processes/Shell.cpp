#include "processes/Shell.h"

#include "format/CFormat.h"
#include "platform/Environment.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <pthread.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace vexel::Shell {

namespace {

using Clock = std::chrono::steady_clock;

bool isExecutableFile(const std::string& path)
{
    struct stat info { };
    return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode) && ::access(path.c_str(), X_OK) == 0;
}

std::vector<std::string> environment(const std::map<std::string, std::string>& extra)
{
    std::map<std::string, std::string> merged;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        const std::string text = *entry;
        const auto equals = text.find('=');
        if (equals != std::string::npos)
            merged[text.substr(0, equals)] = text.substr(equals + 1);
    }
    for (const auto& [key, value] : extra)
        merged[key] = value;
    merged.try_emplace("LC_ALL", "C");
    std::vector<std::string> result;
    for (const auto& [key, value] : merged)
        result.push_back(key + "=" + value);
    return result;
}

std::vector<char*> pointers(std::vector<std::string>& strings)
{
    std::vector<char*> result;
    for (auto& text : strings)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

// Collects a pipe's bytes until its end, until there are more than `cap`,
// or until told to stop.
class PipeReader {
public:
    PipeReader(int fd, size_t cap)
        : m_fd(fd)
        , m_cap(cap)
        , m_thread([this] { drain(); })
    {
    }
    ~PipeReader()
    {
        m_stop = true;
        m_thread.join();
        ::close(m_fd);
    }
    PipeReader(const PipeReader&) = delete;
    PipeReader& operator=(const PipeReader&) = delete;

    // Waits until the pipe has ended, the cap was passed or `deadline`
    // passes; true unless the deadline passed first.
    bool waitUntil(Clock::time_point deadline)
    {
        std::unique_lock lock(m_mutex);
        return m_ended.wait_until(lock, deadline, [this] { return m_done; });
    }

    // Whether the output went past the cap (and reading stopped there).
    bool overflowed()
    {
        std::lock_guard lock(m_mutex);
        return m_overflowed;
    }

    std::string takeOutput()
    {
        std::lock_guard lock(m_mutex);
        return std::move(m_output);
    }

private:
    void drain()
    {
        ::pthread_setname_np(::pthread_self(), "vexel.shell.read");
        char buffer[16384];
        while (!m_stop) {
            pollfd ready{m_fd, POLLIN, 0};
            const int polled = ::poll(&ready, 1, 50);
            if (polled < 0 && errno != EINTR)
                break;
            if (polled <= 0)
                continue;
            const ssize_t got = ::read(m_fd, buffer, sizeof buffer);
            if (got < 0 && errno == EINTR)
                continue;
            if (got <= 0)
                break;
            std::lock_guard lock(m_mutex);
            if (m_output.size() + static_cast<size_t>(got) > m_cap) {
                m_overflowed = true;
                break;
            }
            m_output.append(buffer, static_cast<size_t>(got));
        }
        std::lock_guard lock(m_mutex);
        m_done = true;
        m_ended.notify_all();
    }

    int m_fd;
    size_t m_cap;
    std::atomic<bool> m_stop{false};
    std::mutex m_mutex;
    std::condition_variable m_ended;
    std::string m_output;
    bool m_done = false;
    bool m_overflowed = false;
    std::thread m_thread;
};

// Waits for the child; after `grace` it is killed outright, so that a program
// ignoring the termination signal cannot hold the caller.
void reap(pid_t pid, std::chrono::milliseconds grace)
{
    const auto deadline = Clock::now() + grace;
    int status = 0;
    while (Clock::now() < deadline) {
        const pid_t done = ::waitpid(pid, &status, WNOHANG);
        if (done == pid || (done < 0 && errno != EINTR))
            return;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    ::kill(-pid, SIGKILL);
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) { }
}

// Owns what posix_spawn is given, so that every way out frees it.
struct SpawnSetup {
    posix_spawn_file_actions_t actions{};
    posix_spawnattr_t attributes{};
    int failure = 0; // the first error of the set-up calls

    SpawnSetup()
    {
        check(posix_spawn_file_actions_init(&actions));
        check(posix_spawnattr_init(&attributes));
    }
    ~SpawnSetup()
    {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    SpawnSetup(const SpawnSetup&) = delete;
    SpawnSetup& operator=(const SpawnSetup&) = delete;

    void check(int result)
    {
        if (failure == 0)
            failure = result;
    }
};

// A started tool's process id, or the error number of a start that failed.
struct Spawned {
    pid_t pid = -1;
    int error = 0;
};

// Starts the tool with its output on `outputFd`.
Spawned spawn(const std::string& path, const std::vector<std::string>& args,
    const std::map<std::string, std::string>& env, int outputFd, int pipeReadFd)
{
    SpawnSetup setup;
    setup.check(posix_spawn_file_actions_addopen(&setup.actions, 0, "/dev/null", O_RDONLY, 0));
    setup.check(posix_spawn_file_actions_adddup2(&setup.actions, outputFd, 1));
    setup.check(posix_spawn_file_actions_addopen(&setup.actions, 2, "/dev/null", O_WRONLY, 0));
    setup.check(posix_spawn_file_actions_addclose(&setup.actions, pipeReadFd));
    // A process group of its own, so that a time-out ends the tool's children too.
    setup.check(posix_spawnattr_setpgroup(&setup.attributes, 0));
    setup.check(posix_spawnattr_setflags(&setup.attributes, POSIX_SPAWN_SETPGROUP));
    if (setup.failure != 0)
        return {-1, setup.failure};
    std::vector<std::string> argv{path};
    argv.insert(argv.end(), args.begin(), args.end());
    auto envp = environment(env);
    auto argvPointers = pointers(argv);
    auto envPointers = pointers(envp);
    pid_t pid = 0;
    const int failed
        = posix_spawn(&pid, path.c_str(), &setup.actions, &setup.attributes, argvPointers.data(), envPointers.data());
    if (failed != 0)
        return {-1, failed};
    return {pid, 0};
}

// Ends a tool that is still writing or running: its whole group is asked to
// stop, the output is left to end, and the tool is reaped (killed if need be).
void stop(pid_t pid, PipeReader& reader)
{
    ::kill(-pid, SIGTERM);
    (void)reader.waitUntil(Clock::now() + std::chrono::seconds(1));
    reap(pid, std::chrono::milliseconds(1000));
}

Result failure(std::string error)
{
    return Result{std::nullopt, std::move(error)};
}

} // namespace

Result run(const std::string& path, const std::vector<std::string>& args, double timeoutSeconds,
    const std::map<std::string, std::string>& env, size_t outputCap)
{
    if (!isExecutableFile(path))
        return failure(path + " is not an executable file");
    int fds[2];
    if (::pipe2(fds, O_CLOEXEC) != 0)
        return failure("couldn't start " + path + ": " + std::strerror(errno));
    const auto spawned = spawn(path, args, env, fds[1], fds[0]);
    ::close(fds[1]);
    if (spawned.error != 0) {
        ::close(fds[0]);
        return failure("couldn't start " + path + ": " + std::strerror(spawned.error));
    }
    const pid_t pid = spawned.pid;
    PipeReader reader(fds[0], outputCap);
    const auto timeout = std::chrono::duration<double>(std::max(timeoutSeconds, 0.0));
    const bool finished = reader.waitUntil(Clock::now() + std::chrono::duration_cast<Clock::duration>(timeout));
    if (!finished) {
        stop(pid, reader);
        return failure(path + " didn't finish within " + cformat("%g", timeoutSeconds) + " seconds");
    }
    if (reader.overflowed()) {
        stop(pid, reader);
        return failure(path + " wrote more than " + std::to_string(outputCap) + " bytes and was stopped");
    }
    // The output has ended; a well-behaved tool exits right after.
    reap(pid, std::chrono::milliseconds(1000));
    return Result{reader.takeOutput(), {}};
}

std::optional<std::string> find(const std::string& name, const std::vector<std::string>& extra)
{
    if (name.empty() || name.find('/') != std::string::npos)
        return std::nullopt;
    std::vector<std::string> folders = extra;
    for (const char* folder : {"/opt/homebrew/bin", "/usr/local/bin", "/usr/bin", "/bin", "/usr/sbin", "/sbin"})
        folders.emplace_back(folder);
    const auto home = homeFolder();
    folders.push_back(home + "/.local/bin");
    folders.emplace_back("/snap/bin");
    folders.emplace_back("/home/linuxbrew/.linuxbrew/bin");
    for (const auto& folder : folders) {
        const std::string candidate = folder + "/" + name;
        if (isExecutableFile(candidate))
            return candidate;
    }
    return std::nullopt;
}

} // namespace vexel::Shell
