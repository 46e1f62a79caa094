#include "support/TraceLog.h"

#include "text/TextScan.h"

#include <map>
#include <regex>

namespace vexel::testing {

namespace {

struct Line {
    long tid = 0;
    std::string call; // what follows the task id
};

std::vector<Line> linesOf(const std::string& log)
{
    std::vector<Line> lines;
    TextScan::forEachLine(log, [&](std::string_view text) {
        const auto space = text.find(' ');
        const auto tid = TextScan::toI64(text.substr(0, space));
        if (tid && space != std::string_view::npos)
            lines.push_back({static_cast<long>(*tid), std::string(TextScan::trim(text.substr(space)))});
    });
    return lines;
}

bool opensForWriting(const std::string& call)
{
    static const std::regex writing(R"(O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND)");
    static const std::regex devNull(R"(openat\(AT_FDCWD, "/dev/null")");
    return std::regex_search(call, writing) && !std::regex_search(call, devNull);
}

} // namespace

TraceFindings readTrace(const std::string& log, const std::string& program)
{
    static const std::regex created(R"((clone3?|v?fork)(\(| resumed>).*= (\d+)$)");
    static const std::regex exec(R"re(^execve\("([^"]*)")re");
    static const std::regex signal(R"(^(kill|tgkill|tkill)\()");
    const auto lines = linesOf(log);

    // Who made each task, found first: a child's lines may come before its
    // creator's call is reported finished.
    std::map<long, long> creator;
    for (const auto& line : lines) {
        std::smatch match;
        if (std::regex_search(line.call, match, created))
            creator[std::stol(match[3])] = line.tid;
    }
    TraceFindings findings;
    std::map<long, std::string> running; // task → program it runs now
    const auto programOf = [&](long tid) {
        for (long task = tid; task != 0;) {
            if (const auto found = running.find(task); found != running.end())
                return found->second;
            const auto parent = creator.find(task);
            task = parent == creator.end() ? 0 : parent->second;
        }
        return program; // the first task traced is the program itself
    };
    for (const auto& line : lines) {
        std::smatch match;
        if (std::regex_search(line.call, match, exec) && line.call.find("= -1") == std::string::npos)
            running[line.tid] = match[1];
        else if (!running.contains(line.tid))
            running[line.tid] = programOf(line.tid);
        if (line.call.rfind("openat(", 0) == 0) {
            ++findings.opens;
            if (opensForWriting(line.call))
                findings.writeOpens.push_back(std::to_string(line.tid) + " " + line.call);
        }
        if (std::regex_search(line.call, signal) && running[line.tid] == program)
            findings.signalsSent.push_back(std::to_string(line.tid) + " " + line.call);
    }
    return findings;
}

} // namespace vexel::testing
