#include "processes/linux/LiveProcessSource.h"

#include "io/Files.h"
#include "processes/linux/ProcPidFiles.h"
#include "system/linux/Meminfo.h"
#include "text/TextScan.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <ctime>
#include <iterator>
#include <unistd.h>
#include <utility>

namespace vexel {

namespace {

// An idle process's footprint (anonymous plus swapped memory) and disk
// counters do not change while it does not run, so they are re-read only
// rarely as a safety net: every file read costs microseconds per process.
constexpr uint64_t refreshEvery = 64; // readings between forced memory and disk reads
constexpr uint64_t slowRefreshEvery = 256; // readings between forced user, cgroup and executable reads

double secondsOf(clockid_t clock)
{
    timespec now{};
    ::clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

// Read once: btime is whole seconds and would move start times by up to a second.
double liveBootEpoch()
{
    return secondsOf(CLOCK_REALTIME) - secondsOf(CLOCK_BOOTTIME);
}

std::string withoutDeleted(std::string path)
{
    constexpr std::string_view suffix = " (deleted)";
    if (path.ends_with(suffix))
        path.resize(path.size() - suffix.size());
    return path;
}

// Whether the last open failed for want of descriptors, the process's or the system's.
bool outOfDescriptors()
{
    return errno == EMFILE || errno == ENFILE;
}

} // namespace

LiveProcessSource::LiveProcessSource()
    : LiveProcessSource("/proc", ::geteuid(), liveBootEpoch(), ::sysconf(_SC_CLK_TCK), ::sysconf(_SC_PAGESIZE))
{
}

LiveProcessSource::LiveProcessSource(std::string procRoot, uint32_t myUID, double bootEpoch, long ticksPerSecond,
    long pageSize, DescriptorBudget* budget)
    : m_proc(std::move(procRoot))
    , m_myUID(myUID)
    , m_bootEpoch(bootEpoch)
    , m_ticksPerSecond(ticksPerSecond > 0 ? static_cast<double>(ticksPerSecond) : 100.0)
    , m_pageSize(pageSize > 0 ? static_cast<uint64_t>(pageSize) : 4096)
    , m_budget(budget != nullptr ? *budget : DescriptorBudget::program())
{
    // Root sees through hidepid; everyone else sees only their own processes.
    m_othersHidden = m_myUID != 0
        && ProcPidFiles::procHidesOthers(Files::read(m_proc + "/self/mountinfo", 4 * 1024 * 1024).value_or(""),
            Files::realPath(m_proc).value_or(m_proc));
}

bool LiveProcessSource::machineSwaps()
{
    if (!Files::readInto(m_proc + "/meminfo", m_buffer, 64 * 1024))
        return false;
    const auto fields = Meminfo::parse(m_buffer);
    return fields.swapTotal.value_or(0) > fields.swapFree.value_or(0);
}

void LiveProcessSource::learnSlowFacts(const std::string& folder, Known& known, const std::string& comm)
{
    known.learned = true;
    if (Files::readInto(fileOf(folder, "status"), m_buffer, 64 * 1024)) {
        const auto status = ProcPidFiles::parseStatus(m_buffer);
        known.uid = status.uid.value_or(known.uid);
        known.kernelThread = known.kernelThread || status.kernelThread;
        known.swapBytes = status.vmSwap.value_or(0);
    }
    if (Files::readInto(fileOf(folder, "cgroup"), m_buffer, 64 * 1024))
        known.cgroup = ProcPidFiles::parseCgroup(m_buffer);
    // Only the user's own processes (or every one, for root) reveal their executable.
    const auto exe = known.kernelThread ? std::nullopt : Files::readLink(fileOf(folder, "exe"));
    const auto link = exe ? std::optional(ProcPidFiles::parseExeLink(*exe)) : std::nullopt;
    known.path.reset();
    known.name.reset();
    if (link && link->inMemory) {
        // A program run from memory has no file, and its comm is the memfd's
        // name ("memfd:sealed-91"): argv[0] names it.
        if (Files::readInto(fileOf(folder, "cmdline"), m_buffer, 64 * 1024))
            if (auto name = ProcPidFiles::programName(m_buffer); !name.empty())
                known.name = std::move(name);
    } else if (link && (!link->deleted || Files::exists(link->path))) {
        // Replaced on disk (an upgrade) is still that program; removed is no path at all.
        known.path = link->path;
        if (auto full = ProcPidFiles::fullName(comm, link->path); full != comm)
            known.name = std::move(full);
    }
    learnPackage(folder, known);
}

void LiveProcessSource::learnPackage(const std::string& folder, Known& known)
{
    known.flatpakApp.reset();
    known.appImage.reset();
    if (!known.path)
        return;
    // A Flatpak's programs live under /app inside its sandbox, whose root
    // names the app; an AppImage runs from a mount folder with a random
    // suffix, and its environment names the file it came from.
    if (known.path->starts_with("/app/") && Files::readInto(fileOf(folder, "root/.flatpak-info"), m_buffer, 64 * 1024))
        known.flatpakApp = ProcPidFiles::parseFlatpakInfo(m_buffer);
    else if (known.path->starts_with("/tmp/.mount_")
        && Files::readInto(fileOf(folder, "environ"), m_buffer, 1024 * 1024))
        known.appImage = ProcPidFiles::environValue(m_buffer, "APPIMAGE");
}

void LiveProcessSource::measure(const std::string& folder, Known& known, bool own, bool swapping)
{
    known.measured = true;
    if (Files::readInto(fileOf(folder, "statm"), m_buffer, 4096))
        known.anonBytes = ProcPidFiles::parseStatmAnonPages(m_buffer).value_or(0) * m_pageSize;
    if (swapping && Files::readInto(fileOf(folder, "status"), m_buffer, 64 * 1024))
        known.swapBytes = ProcPidFiles::parseStatus(m_buffer).vmSwap.value_or(0);
    else if (!swapping)
        known.swapBytes = 0;
    if (!own)
        return;
    if (Files::readInto(fileOf(folder, "io"), m_buffer, 4096)) {
        if (const auto io = ProcPidFiles::parseIo(m_buffer)) {
            known.diskRead = io->readBytes;
            known.diskWrite = io->writeBytes;
            return;
        }
    }
    known.diskRead.reset();
    known.diskWrite.reset();
}

const std::string& LiveProcessSource::fileOf(const std::string& folder, const char* name)
{
    m_file.assign(folder).append("/").append(name);
    return m_file;
}

std::vector<ProcRecord> LiveProcessSource::snapshot(ProcessScope scope)
{
    std::vector<ProcRecord> records;
    if (!m_listing.read(m_proc, m_pids)
        && !(outOfDescriptors() && giveBackDescriptors() && m_listing.read(m_proc, m_pids)))
        return records;
    ++m_readings;
    const bool swapping = machineSwaps();
    noteListed();
    records.reserve(m_pids.size());
    for (size_t i = 0; i < m_pids.size(); ++i) {
        if (auto record = read(m_pids[i], *m_listed[i], scope, swapping))
            records.push_back(std::move(*record));
    }
    // Forget the processes that are gone, closing their descriptors.
    std::erase_if(m_known, [this](const auto& entry) { return entry.second.seen != m_readings; });
    return records;
}

void LiveProcessSource::noteListed()
{
    m_listed.clear();
    for (const int32_t pid : m_pids) {
        Known& known = m_known[pid]; // entries stay where they are as the map grows
        known.listed = m_readings;
        m_listed.push_back(&known);
    }
    m_gone.clear();
    for (const auto& [pid, known] : m_known) {
        if (known.listed != m_readings)
            m_gone.push_back(pid);
    }
    std::sort(m_gone.begin(), m_gone.end());
}

bool LiveProcessSource::parentGone(const ProcPidFiles::Stat& stat) const
{
    // Its children were given to another parent without running.
    return !m_gone.empty() && std::binary_search(m_gone.begin(), m_gone.end(), stat.ppid);
}

LiveProcessSource::Ran LiveProcessSource::ranSinceLastReading(Known& known)
{
    if (!m_schedstatTells || known.noSchedstat || known.last->threads != 1
        || (!known.schedstat.kept() && m_budget.inUse() >= m_budget.limit()))
        return Ran::unknown;
    const bool wasKept = known.schedstat.kept();
    const auto text = known.schedstat.read(fileOf(m_folder, "schedstat").c_str(), m_statText, m_budget);
    const auto runtime = text ? ProcPidFiles::parseSchedstatRuntime(*text) : std::nullopt;
    if (!runtime) {
        // Ended (its stat says so next), or no schedstat to read.
        known.noSchedstat = !wasKept;
        known.schedstat.close();
        return Ran::unknown;
    }
    if (*runtime == 0 && known.last->utime + known.last->stime > 0) {
        // Never run, by a process that has used processor time: the kernel
        // keeps no scheduler statistics and writes "0 0 0" for everyone.
        m_schedstatTells = false;
        known.schedstat.close();
        return Ran::unknown;
    }
    const bool ran = known.runtime != runtime;
    known.runtime = runtime;
    return ran ? Ran::yes : Ran::no;
}

std::optional<std::string_view> LiveProcessSource::readStat(Known& known)
{
    ++m_statReads;
    const char* path = fileOf(m_folder, "stat").c_str();
    const bool wasKept = known.stat.kept();
    auto text = known.stat.read(path, m_statText, m_budget);
    if (!text && wasKept) {
        // The process the descriptor was kept for has ended; the pid may name a new one.
        known = Known{};
        text = known.stat.read(path, m_statText, m_budget);
    }
    if (!text && outOfDescriptors() && giveBackDescriptors())
        text = known.stat.read(path, m_statText, m_budget);
    return text;
}

bool LiveProcessSource::giveBackDescriptors()
{
    const size_t kept = m_budget.inUse();
    if (kept == 0)
        return false;
    m_budget.lowerTo(kept / 2);
    for (auto& entry : m_known)
        entry.second.stat.close();
    return true;
}

std::optional<ProcRecord> LiveProcessSource::read(int32_t pid, Known& known, ProcessScope scope, bool swapping)
{
    char digits[16];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), pid).ptr;
    m_folder.assign(m_proc).append("/").append(std::begin(digits), end);
    const bool due = (m_readings + static_cast<uint64_t>(pid)) % refreshEvery == 0;
    const Ran ran = known.last && !due && !parentGone(*known.last) ? ranSinceLastReading(known) : Ran::unknown;
    std::optional<ProcPidFiles::Stat> previous;
    if (ran != Ran::no) {
        const auto text = readStat(known);
        if (!text)
            return std::nullopt; // it exited since the folder was listed
        auto stat = ProcPidFiles::parseStat(*text);
        if (!stat)
            return std::nullopt;
        if (known.last && known.last->startTime != stat->startTime) {
            // Another process has the pid now: only the open stat file is its.
            KeptFile file = std::move(known.stat);
            known = Known{};
            known.stat = std::move(file);
        }
        previous = std::exchange(known.last, std::move(*stat));
    }
    const ProcPidFiles::Stat& stat = *known.last;

    ProcRecord record;
    record.pid = pid;
    record.ppid = stat.ppid;
    record.start = m_bootEpoch + static_cast<double>(stat.startTime) / m_ticksPerSecond;
    record.zombie = stat.isZombie();
    known.seen = m_readings;
    known.kernelThread = known.kernelThread || stat.isKernelThread();
    const bool slowDue = (m_readings + static_cast<uint64_t>(pid)) % slowRefreshEvery == 0;
    // A new program (a changed name) may bring a new user and executable.
    // Kernel threads never run a new program, but workers rename themselves for each job.
    const bool renamed = previous && previous->comm != stat.comm && !known.kernelThread;
    if (!known.learned || renamed || slowDue)
        learnSlowFacts(m_folder, known, stat.comm);

    record.name = known.name ? *known.name : stat.comm;
    record.uid = known.uid;
    record.kernelThread = known.kernelThread;
    record.cgroup = known.cgroup;
    record.flatpakApp = known.flatpakApp;
    record.appImage = known.appImage;
    if (!record.zombie)
        record.path = known.path;
    const bool own = known.uid == m_myUID;
    const uint64_t ticks = stat.utime + stat.stime;
    // stat is every user's to read: every process's time comes on every
    // tick, so other users' rates hold across the ticks that skip their memory.
    if (!record.zombie)
        record.cpuTime = static_cast<double>(ticks) / m_ticksPerSecond;
    if (!record.zombie && (own || scope == ProcessScope::everyone)) {
        const bool moved = previous
            && (previous->utime + previous->stime != ticks || previous->rssPages != stat.rssPages || ran == Ran::yes);
        if (!known.measured || moved || due)
            measure(m_folder, known, own, swapping);
        record.memory = known.anonBytes + known.swapBytes;
        record.memoryIsFootprint = true;
        if (own) {
            record.diskRead = known.diskRead;
            record.diskWrite = known.diskWrite;
        }
    }
    return record;
}

std::optional<std::string> LiveProcessSource::cwd(int32_t pid)
{
    const auto target = Files::readLink(m_proc + "/" + std::to_string(pid) + "/cwd");
    if (!target)
        return std::nullopt;
    return withoutDeleted(*target);
}

} // namespace vexel
