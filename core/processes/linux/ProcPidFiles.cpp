#include "processes/linux/ProcPidFiles.h"

#include "system/linux/Mountinfo.h"
#include "text/TextScan.h"

#include <array>
#include <limits>
#include <span>

namespace vexel::ProcPidFiles {

namespace {

// "Name:\t  1234 kB" → bytes (or the plain number without a unit).
std::optional<uint64_t> statusBytes(std::string_view rest)
{
    const auto fields = TextScan::words(rest);
    if (fields.empty())
        return std::nullopt;
    const auto value = TextScan::toU64(fields[0]);
    const uint64_t scale = fields.size() > 1 && fields[1] == "kB" ? 1024 : 1;
    if (!value || *value > std::numeric_limits<uint64_t>::max() / scale)
        return std::nullopt;
    return *value * scale;
}

// Splits `text` after `from` at blanks and newlines into `fields`, stopping
// once they are full; how many it found. Builds no list: stat and schedstat
// are read for every process at every reading.
size_t splitFields(std::string_view text, size_t from, std::span<std::string_view> fields)
{
    size_t count = 0;
    size_t i = from;
    while (count < fields.size() && i < text.size()) {
        while (i < text.size() && (text[i] == ' ' || text[i] == '\n'))
            ++i;
        const size_t start = i;
        while (i < text.size() && text[i] != ' ' && text[i] != '\n')
            ++i;
        if (i > start)
            fields[count++] = text.substr(start, i - start);
    }
    return count;
}

} // namespace

std::optional<Stat> parseStat(std::string_view text)
{
    const auto open = text.find('(');
    const auto close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return std::nullopt;
    // After the name, counting from 0: 0 state, 1 ppid, 6 flags, 11 utime, 12 stime, 17 num_threads,
    // 19 starttime, 21 rss.
    constexpr size_t needed = 20;
    std::array<std::string_view, 22> fields;
    const size_t count = splitFields(text, close + 1, fields);
    if (count < needed || fields[0].size() != 1)
        return std::nullopt;
    Stat stat;
    stat.comm = std::string(text.substr(open + 1, close - open - 1));
    stat.state = fields[0][0];
    const auto ppid = TextScan::toI64(fields[1]);
    const auto flags = TextScan::toU64(fields[6]);
    const auto utime = TextScan::toU64(fields[11]);
    const auto stime = TextScan::toU64(fields[12]);
    const auto threads = TextScan::toU64(fields[17]);
    const auto start = TextScan::toU64(fields[19]);
    if (!ppid || *ppid < 0 || *ppid > std::numeric_limits<int32_t>::max() || !flags || !utime || !stime || !start
        || !threads)
        return std::nullopt;
    stat.ppid = static_cast<int32_t>(*ppid);
    stat.flags = *flags;
    stat.utime = *utime;
    stat.stime = *stime;
    stat.startTime = *start;
    stat.threads = *threads;
    stat.rssPages = count > 21 ? TextScan::toU64(fields[21]).value_or(0) : 0;
    return stat;
}

std::optional<uint64_t> parseSchedstatRuntime(std::string_view text)
{
    std::array<std::string_view, 4> fields;
    if (splitFields(text, 0, fields) != 3 || !TextScan::toU64(fields[1]) || !TextScan::toU64(fields[2]))
        return std::nullopt;
    return TextScan::toU64(fields[0]);
}

std::optional<uint64_t> parseStatmAnonPages(std::string_view text)
{
    const auto fields = TextScan::words(text);
    if (fields.size() < 3)
        return std::nullopt;
    const auto resident = TextScan::toU64(fields[1]);
    const auto shared = TextScan::toU64(fields[2]);
    if (!resident || !shared)
        return std::nullopt;
    return *resident > *shared ? *resident - *shared : 0;
}

Status parseStatus(std::string_view text)
{
    Status status;
    TextScan::forEachLine(text, [&](std::string_view line) {
        const auto colon = line.find(':');
        if (colon == std::string_view::npos)
            return;
        const auto key = line.substr(0, colon);
        const auto rest = line.substr(colon + 1);
        if (key == "Uid") {
            // real, effective, saved, filesystem
            const auto ids = TextScan::words(rest);
            const auto effective = ids.size() > 1 ? TextScan::toU64(ids[1]) : std::nullopt;
            if (effective && *effective <= std::numeric_limits<uint32_t>::max())
                status.uid = static_cast<uint32_t>(*effective);
        } else if (key == "RssAnon") {
            status.rssAnon = statusBytes(rest);
        } else if (key == "VmSwap") {
            status.vmSwap = statusBytes(rest);
        } else if (key == "Kthread") {
            status.kernelThread = TextScan::trim(rest) == "1";
        }
    });
    return status;
}

std::optional<Io> parseIo(std::string_view text)
{
    std::optional<uint64_t> read;
    std::optional<uint64_t> write;
    TextScan::forEachLine(text, [&](std::string_view line) {
        if (line.starts_with("read_bytes:"))
            read = TextScan::toU64(line.substr(11));
        else if (line.starts_with("write_bytes:"))
            write = TextScan::toU64(line.substr(12));
    });
    if (!read || !write)
        return std::nullopt;
    return Io{*read, *write};
}

std::optional<std::string> parseCgroup(std::string_view text)
{
    std::optional<std::string> unified;
    std::optional<std::string> systemd;
    TextScan::forEachLine(text, [&](std::string_view line) {
        if (line.starts_with("0::"))
            unified = std::string(line.substr(3));
        else if (const auto at = line.find(":name=systemd:"); at != std::string_view::npos)
            systemd = std::string(line.substr(at + 14));
    });
    // A hybrid system puts every process at "/" of the unified tree; systemd's own tree knows better.
    if (unified && (*unified != "/" || !systemd))
        return unified;
    return systemd;
}

ExeLink parseExeLink(std::string_view target)
{
    constexpr std::string_view deletedSuffix = " (deleted)";
    ExeLink link;
    link.deleted = target.ends_with(deletedSuffix);
    if (link.deleted)
        target.remove_suffix(deletedSuffix.size());
    link.inMemory = target.starts_with("memfd:") || target.starts_with("/memfd:");
    link.path = std::string(target);
    return link;
}

std::string programName(std::string_view cmdline)
{
    const auto argv0 = cmdline.substr(0, cmdline.find('\0'));
    const auto slash = argv0.rfind('/');
    return std::string(slash == std::string_view::npos ? argv0 : argv0.substr(slash + 1));
}

std::string fullName(const std::string& comm, std::string_view exePath)
{
    constexpr size_t commLength = 15; // TASK_COMM_LEN less its NUL
    const auto slash = exePath.rfind('/');
    const auto file = slash == std::string_view::npos ? exePath : exePath.substr(slash + 1);
    if (comm.size() == commLength && file.size() > commLength && file.starts_with(comm))
        return std::string(file);
    return comm;
}

std::optional<std::string> parseFlatpakInfo(std::string_view text)
{
    std::optional<std::string> name;
    bool inApplication = false;
    TextScan::forEachLine(text, [&](std::string_view line) {
        line = TextScan::trim(line);
        if (line.starts_with('[')) {
            inApplication = line == "[Application]";
            return;
        }
        const auto equals = line.find('=');
        if (inApplication && !name && equals != std::string_view::npos
            && TextScan::trim(line.substr(0, equals)) == "name") {
            const auto value = TextScan::trim(line.substr(equals + 1));
            if (!value.empty())
                name = std::string(value);
        }
    });
    return name;
}

std::optional<std::string> environValue(std::string_view variables, std::string_view name)
{
    size_t start = 0;
    while (start < variables.size()) {
        auto end = variables.find('\0', start);
        if (end == std::string_view::npos)
            end = variables.size();
        const auto entry = variables.substr(start, end - start);
        if (entry.size() > name.size() && entry.starts_with(name) && entry[name.size()] == '=')
            return std::string(entry.substr(name.size() + 1));
        start = end + 1;
    }
    return std::nullopt;
}

bool procHidesOthers(std::string_view mountinfo, std::string_view mountPoint)
{
    // The last mount at the point is the one in sight.
    const auto mounts = Mountinfo::parse(mountinfo);
    for (auto mount = mounts.rbegin(); mount != mounts.rend(); ++mount) {
        if (mount->mountPoint != mountPoint)
            continue;
        if (mount->fsType != "proc")
            return false;
        bool hides = false;
        size_t start = 0;
        const std::string_view options = mount->superOptions;
        while (start <= options.size()) {
            const auto comma = std::min(options.find(',', start), options.size());
            const auto option = options.substr(start, comma - start);
            hides = hides || option == "hidepid=1" || option == "hidepid=2" || option == "hidepid=noaccess"
                || option == "hidepid=invisible" || option == "subset=pid";
            start = comma + 1;
        }
        return hides;
    }
    return false;
}

} // namespace vexel::ProcPidFiles
