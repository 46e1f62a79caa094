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

    [[nodiscard]] explicit operator bool() const { return output.has_value(); }
    [[nodiscard]] const std::string& operator*() const { return *output; }
    [[nodiscard]] const std::string* operator->() const { return &*output; }
};

// The most a tool may write before it is stopped: more than any tool Vexel
// runs writes on a busy machine, far less than would strain memory.
inline constexpr size_t defaultOutputCap = 64 * 1024 * 1024;

// Runs the program at `path` with `args` (no shell is involved) and returns
// what it wrote to standard output. Standard input and error are the null
// device; "LC_ALL" is "C" unless the environment or `env` sets it, so that
// output is never localised. Output is drained on a thread of its own while
// the caller waits at most `timeoutSeconds`; when time runs out, or the tool
// writes more than `outputCap` bytes, the program and its children are
// terminated (killed a second later if need be), reaped, and the result is
// an error. An error too when `path` is not an executable file or the launch
// fails. The exit status is not judged: tools that exit non-zero with output
// still give it.
[[nodiscard]] Result run(const std::string& path, const std::vector<std::string>& args, double timeoutSeconds,
    const std::map<std::string, std::string>& env = {}, size_t outputCap = defaultOutputCap);

// The full path of an executable called `name`: the folders of `extra` first,
// then /opt/homebrew/bin, /usr/local/bin, /usr/bin, /bin, /usr/sbin, /sbin,
// ~/.local/bin, /snap/bin and /home/linuxbrew/.linuxbrew/bin. Nothing when none holds one.
[[nodiscard]] std::optional<std::string> find(const std::string& name, const std::vector<std::string>& extra = {});

} // namespace vexel::Shell
