#include "grouping/linux/ProgramPaths.h"

#include "io/Files.h"

#include <deque>
#include <filesystem>

namespace vexel::ProgramPaths {

namespace {

// Link chains longer than this are loops, as the kernel's own limit says.
constexpr int maxLinks = 40;

std::deque<std::string> componentsOf(const std::string& path)
{
    std::deque<std::string> parts;
    size_t start = 0;
    while (start <= path.size()) {
        const auto slash = path.find('/', start);
        const auto end = slash == std::string::npos ? path.size() : slash;
        if (end > start)
            parts.push_back(path.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

std::string joined(const std::vector<std::string>& parts)
{
    std::string path;
    for (const auto& part : parts)
        path += "/" + part;
    return path.empty() ? "/" : path;
}

bool isLink(const std::string& path)
{
    std::error_code error;
    return std::filesystem::is_symlink(std::filesystem::symlink_status(path, error));
}

} // namespace

std::optional<std::string> realPathUnder(const std::string& root, const std::string& path)
{
    std::vector<std::string> done;
    auto todo = componentsOf(path);
    int links = 0;
    while (!todo.empty()) {
        const std::string part = std::move(todo.front());
        todo.pop_front();
        if (part == ".")
            continue;
        if (part == "..") {
            if (!done.empty())
                done.pop_back();
            continue;
        }
        const std::string here = root + joined(done) + (done.empty() ? "" : "/") + part;
        if (!isLink(here)) {
            if (!Files::exists(here))
                return std::nullopt;
            done.push_back(part);
            continue;
        }
        const auto target = Files::readLink(here);
        if (!target || ++links > maxLinks)
            return std::nullopt;
        if (target->starts_with('/'))
            done.clear();
        const auto parts = componentsOf(*target);
        todo.insert(todo.begin(), parts.begin(), parts.end());
    }
    return joined(done);
}

std::optional<std::string> resolve(
    const std::string& root, const std::string& program, const std::vector<std::string>& searchPath)
{
    if (program.empty())
        return std::nullopt;
    if (program.starts_with('/'))
        return realPathUnder(root, program);
    if (program.find('/') != std::string::npos)
        return std::nullopt; // relative to nothing in particular
    for (const auto& folder : searchPath) {
        if (auto found = realPathUnder(root, folder + "/" + program))
            return found;
    }
    return std::nullopt;
}

} // namespace vexel::ProgramPaths
