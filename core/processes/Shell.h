#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vexel::Shell {

// Runs the program at `path` with `args` (no shell is involved) and returns
// what it wrote to standard output. Standard input and error are the null
// device; "LC_ALL" is "C" unless the environment or `env` sets it, so that
// output is never localised. Output is drained on a thread of its own while
// the caller waits at most `timeoutSeconds`; when time runs out the program
// and its children are terminated (killed a second later if need be), reaped,
// and the result is nothing. Nothing too when `path` is not an executable
// file or the launch fails. The exit status is not judged: tools that exit
// non-zero with output still give it.
[[nodiscard]] std::optional<std::string> run(const std::string& path, const std::vector<std::string>& args,
    double timeoutSeconds, const std::map<std::string, std::string>& env = {});

// The full path of an executable called `name`: the folders of `extra` first,
// then /opt/homebrew/bin, /usr/local/bin, /usr/bin, /bin, /usr/sbin, /sbin,
// ~/.local/bin, /snap/bin and /home/linuxbrew/.linuxbrew/bin. Nothing when none holds one.
[[nodiscard]] std::optional<std::string> find(const std::string& name, const std::vector<std::string>& extra = {});

} // namespace vexel::Shell
