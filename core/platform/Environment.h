#pragma once

#include <functional>
#include <optional>
#include <string>

namespace vexel {

// A variable of this process's environment; nothing when unset.
[[nodiscard]] std::optional<std::string> environmentVariable(const char* name);

// The user's home folder: $HOME when set and non-empty, else the password database's entry.
[[nodiscard]] std::string homeFolder(const std::function<std::optional<std::string>(const char*)>& getenv);
// The same from this process's environment.
[[nodiscard]] std::string homeFolder();

// Where the user's settings of every program live: $XDG_CONFIG_HOME when
// it is an absolute path, else ~/.config.
[[nodiscard]] std::string configFolder();

// The locale the user reads messages in: the first non-empty of LC_ALL,
// LC_MESSAGES and LANG ("de_DE.UTF-8"); empty when none is set.
[[nodiscard]] std::string messagesLocale(const std::function<std::optional<std::string>(const char*)>& getenv);
[[nodiscard]] std::string messagesLocale();

} // namespace vexel
