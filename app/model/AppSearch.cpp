#include "model/AppSearch.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>
#include <string>

namespace vexel {

namespace {

std::string lower(std::string_view text)
{
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
}

std::optional<int32_t> pidIn(std::string_view query)
{
    int32_t pid = 0;
    const auto* end = query.data() + query.size();
    const auto [stop, error] = std::from_chars(query.data(), end, pid);
    if (error != std::errc() || stop != end || pid <= 0)
        return std::nullopt;
    return pid;
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())))
        text.remove_prefix(1);
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back())))
        text.remove_suffix(1);
    return text;
}

} // namespace

std::vector<AppGroup> searchApps(const std::vector<AppGroup>& apps, std::string_view query)
{
    query = trimmed(query);
    if (query.empty())
        return apps;
    const auto pid = pidIn(query);
    const std::string needle = lower(query);
    const auto contains = [&needle](const std::string& name) { return lower(name).find(needle) != std::string::npos; };
    std::vector<AppGroup> found;
    for (const auto& app : apps) {
        const bool matches = contains(app.name) || std::ranges::any_of(app.processes, [&](const ProcRow& process) {
            return (pid && process.pid == *pid) || (!pid && contains(process.name));
        });
        if (matches)
            found.push_back(app);
    }
    return found;
}

} // namespace vexel
