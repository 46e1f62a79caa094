#include "platform/Environment.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace vexel {

std::optional<std::string> environmentVariable(const char* name)
{
    const char* value = std::getenv(name);
    if (value == nullptr)
        return std::nullopt;
    return std::string(value);
}

std::string homeFolder()
{
    return homeFolder(environmentVariable);
}

std::string configFolder()
{
    const auto config = environmentVariable("XDG_CONFIG_HOME");
    return config && config->starts_with('/') ? *config : homeFolder() + "/.config";
}

std::string homeFolder(const std::function<std::optional<std::string>(const char*)>& getenv)
{
    if (const auto home = getenv("HOME"); home && !home->empty())
        return *home;
    if (const passwd* entry = ::getpwuid(::getuid()); entry != nullptr && entry->pw_dir != nullptr)
        return entry->pw_dir;
    return "/";
}

std::string messagesLocale(const std::function<std::optional<std::string>(const char*)>& getenv)
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (auto value = getenv(name); value && !value->empty())
            return *value;
    }
    return {};
}

std::string messagesLocale()
{
    return messagesLocale(environmentVariable);
}

} // namespace vexel
