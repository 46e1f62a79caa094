#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace vexel::testing {

// A program a test started, with the argument vector given (no shell). When
// the value goes the program is killed and reaped, so a failing assertion
// leaves nothing running behind it.
class ChildProcess {
public:
    struct Options {
        std::filesystem::path folder; // its working folder; the test's own when empty
        bool readOutput = false; // its standard output comes to readLine
        bool readErrors = false; // and its standard error too, in the same stream
    };

    // Starts the program; pid() is 0 when it could not be started.
    explicit ChildProcess(const std::vector<std::string>& argv, const Options& options);
    explicit ChildProcess(const std::vector<std::string>& argv)
        : ChildProcess(argv, Options{})
    {
    }
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    [[nodiscard]] pid_t pid() const { return m_pid; }

    // The next line of its output, without the newline; waits until the
    // line is complete. Empty when the output ended first.
    [[nodiscard]] std::string readLine();

    // Sends `signal` and waits for the program to end; its wait status.
    int stop(int signal);
    // Waits for the program to end by itself; its wait status.
    int wait();
    // Waits at most `milliseconds` for it to end by itself (on its pidfd,
    // which turns readable when it does); its wait status, or nothing while
    // it still runs.
    std::optional<int> waitUpTo(int milliseconds);

private:
    pid_t m_pid = 0;
    int m_output = -1;
    bool m_reaped = false;
};

// What a forked child wrote to its standard output, and how it ended.
struct ForkedRun {
    int status = -1; // its wait status; -1 when it could not be forked
    std::string output;
};

// Runs `child` in a forked copy of this process with its standard output
// going to a pipe, and waits for it. `child` must end with _exit or exec:
// it never returns into the test.
[[nodiscard]] ForkedRun runForked(const std::function<void()>& child);

} // namespace vexel::testing
