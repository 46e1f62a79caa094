#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vexel::Shell {

// What a tool gave: everything it wrote to standard output, or, when it
// could not be run to its end, nothing and the reason why.
struct Result {
    std::optional<std::string> output;
    std::string error; // empty with output; else a sentence naming the tool
    std::string errors; // what it wrote to standard error, when kept

    [[nodiscard]] explicit operator bool() const { return output.has_value(); }
    [[nodiscard]] const std::string& operator*() const { return *output; }
    [[nodiscard]] const std::string* operator->() const { return &*output; }
};

// The most a tool may write before it is stopped: more than any tool Vexel
// runs writes on a busy machine, far less than would strain memory.
inline constexpr size_t defaultOutputCap = 64 * 1024 * 1024;
// The most of its standard error that is kept; the rest is read and dropped.
inline constexpr size_t errorCap = 64 * 1024;

struct Options {
    std::map<std::string, std::string> env{}; // set on top of this process's environment
    size_t outputCap = defaultOutputCap;
    bool keepErrors = false; // standard error into Result::errors; else the null device
};

// Runs the program at `path` with `args` (no shell is involved) and returns
// what it wrote to standard output. Standard input is the null device, and
// standard error too unless kept; "LC_ALL" is "C" unless the environment or
// the options set it, so that output is never localised. Output is drained on
// threads of their own while the caller waits at most `timeoutSeconds`; when
// time runs out, or the tool writes more than the output cap, the program
// and its children are terminated (killed a second later if need be),
// reaped, and the result is an error. An error too when `path` is not an
// executable file or the launch fails. The exit status is not judged: tools
// that exit non-zero with output still give it.
[[nodiscard]] Result run(
    const std::string& path, const std::vector<std::string>& args, double timeoutSeconds, const Options& options = {});

// Where programs are looked for, in order: /opt/homebrew/bin, /usr/local/bin,
// /usr/bin, /bin, /usr/sbin, /sbin, ~/.local/bin, /snap/bin and
// /home/linuxbrew/.linuxbrew/bin.
[[nodiscard]] std::vector<std::string> searchFolders();

// The full path of an executable called `name`: the folders of `extra` first,
// then /opt/homebrew/bin, /usr/local/bin, /usr/bin, /bin, /usr/sbin, /sbin,
// ~/.local/bin, /snap/bin and /home/linuxbrew/.linuxbrew/bin. Nothing when none holds one.
[[nodiscard]] std::optional<std::string> find(const std::string& name, const std::vector<std::string>& extra = {});

} // namespace vexel::Shell
