#include "processes/Shell.h"

#include "format/CFormat.h"
#include "platform/Environment.h"
#include "processes/PipeReader.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

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

// Starts the tool with its standard output on `outputFd` and its standard
// error on `errorFd` (the null device when -1); `readEnds` are the pipes'
// other ends, closed in the child.
Spawned spawn(const std::string& path, const std::vector<std::string>& args,
    const std::map<std::string, std::string>& env, int outputFd, int errorFd, const std::vector<int>& readEnds)
{
    SpawnSetup setup;
    setup.check(posix_spawn_file_actions_addopen(&setup.actions, 0, "/dev/null", O_RDONLY, 0));
    setup.check(posix_spawn_file_actions_adddup2(&setup.actions, outputFd, 1));
    if (errorFd >= 0)
        setup.check(posix_spawn_file_actions_adddup2(&setup.actions, errorFd, 2));
    else
        setup.check(posix_spawn_file_actions_addopen(&setup.actions, 2, "/dev/null", O_WRONLY, 0));
    for (const int fd : readEnds)
        setup.check(posix_spawn_file_actions_addclose(&setup.actions, fd));
    // A process group of its own, so that a time-out ends the tool's children too.
    setup.check(posix_spawnattr_setpgroup(&setup.attributes, 0));
    // Nothing blocked and nothing ignored: the desktop app blocks its stop
    // signals in every thread to take them from a signalfd, and both the mask
    // and ignored signals survive exec, so a tool would not hear the time-out.
    sigset_t none;
    sigemptyset(&none);
    setup.check(posix_spawnattr_setsigmask(&setup.attributes, &none));
    sigset_t every;
    sigfillset(&every);
    setup.check(posix_spawnattr_setsigdefault(&setup.attributes, &every));
    setup.check(posix_spawnattr_setflags(
        &setup.attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF));
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
    return Result{std::nullopt, std::move(error), {}};
}

// A pipe's two ends, closed when it goes unless taken.
struct Pipe {
    int read = -1;
    int write = -1;

    Pipe()
    {
        int fds[2];
        if (::pipe2(fds, O_CLOEXEC) == 0) {
            read = fds[0];
            write = fds[1];
        }
    }
    ~Pipe()
    {
        closeRead();
        closeWrite();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    [[nodiscard]] bool ok() const { return read >= 0; }
    void closeWrite()
    {
        if (write >= 0)
            ::close(std::exchange(write, -1));
    }
    void closeRead()
    {
        if (read >= 0)
            ::close(std::exchange(read, -1));
    }
    // The reading end, now the caller's to close.
    int takeRead() { return std::exchange(read, -1); }
};

} // namespace

Result run(const std::string& path, const std::vector<std::string>& args, double timeoutSeconds, const Options& options)
{
    if (!isExecutableFile(path))
        return failure(path + " is not an executable file");
    Pipe output;
    Pipe errors;
    if (!output.ok() || (options.keepErrors && !errors.ok()))
        return failure("couldn't start " + path + ": " + std::strerror(errno));
    const auto spawned = spawn(
        path, args, options.env, output.write, options.keepErrors ? errors.write : -1, {output.read, errors.read});
    output.closeWrite();
    errors.closeWrite();
    if (spawned.error != 0)
        return failure("couldn't start " + path + ": " + std::strerror(spawned.error));
    const pid_t pid = spawned.pid;
    PipeReader reader(output.takeRead(), options.outputCap, PipeReader::PastTheCap::stop);
    std::optional<PipeReader> errorReader;
    if (options.keepErrors)
        errorReader.emplace(errors.takeRead(), errorCap, PipeReader::PastTheCap::drop);
    const auto timeout = std::chrono::duration<double>(std::max(timeoutSeconds, 0.0));
    const auto deadline = Clock::now() + std::chrono::duration_cast<Clock::duration>(timeout);
    const bool finished = reader.waitUntil(deadline) && (!errorReader || errorReader->waitUntil(deadline));
    if (!finished) {
        stop(pid, reader);
        return failure(path + " didn't finish within " + cformat("%g", timeoutSeconds) + " seconds");
    }
    if (reader.overflowed()) {
        stop(pid, reader);
        return failure(path + " wrote more than " + std::to_string(options.outputCap) + " bytes and was stopped");
    }
    // The output has ended; a well-behaved tool exits right after.
    reap(pid, std::chrono::milliseconds(1000));
    return Result{reader.takeOutput(), {}, errorReader ? errorReader->takeOutput() : std::string()};
}

std::vector<std::string> searchFolders()
{
    std::vector<std::string> folders;
    for (const char* folder : {"/opt/homebrew/bin", "/usr/local/bin", "/usr/bin", "/bin", "/usr/sbin", "/sbin"})
        folders.emplace_back(folder);
    folders.push_back(homeFolder() + "/.local/bin");
    folders.emplace_back("/snap/bin");
    folders.emplace_back("/home/linuxbrew/.linuxbrew/bin");
    return folders;
}

std::optional<std::string> find(const std::string& name, const std::vector<std::string>& extra)
{
    if (name.empty() || name.find('/') != std::string::npos)
        return std::nullopt;
    std::vector<std::string> folders = extra;
    for (auto& folder : searchFolders())
        folders.push_back(std::move(folder));
    for (const auto& folder : folders) {
        const std::string candidate = folder + "/" + name;
        if (isExecutableFile(candidate))
            return candidate;
    }
    return std::nullopt;
}

} // namespace vexel::Shell
