#pragma once

#include "processes/ProcessSource.h"
#include "processes/linux/DescriptorBudget.h"
#include "processes/linux/KeptFile.h"
#include "processes/linux/ProcListing.h"
#include "processes/linux/ProcPidFiles.h"

#include <array>
#include <string>
#include <unordered_map>

namespace vexel {

// The process table of a Linux machine, read from /proc.
//
// Each reading lists /proc and reads every process through descriptors
// opened at its first reading and kept until it ends (as many as the
// program's descriptor budget allows; the rest are opened each time).
//
// A single-threaded process is asked first how long it has run
// (/proc/<pid>/schedstat, a far cheaper file than stat): when that did not
// move and its parent is still there, nothing in its stat can have changed,
// and the last one stands. Other processes have their stat read every time.
// What changes rarely (user, executable, cgroup) is kept per process and
// looked up again only when the process runs a new program. Memory (statm,
// plus swap from status when the machine swaps) and disk bytes (io, own
// processes) are re-read for a process that ran or whose resident pages
// moved since the last reading: one that did not run cannot have touched its
// memory or the disk. Every 64th reading of a process reads all of it anew.
class LiveProcessSource final : public ProcessSource {
public:
    // This machine's /proc, as the calling user, within the program's budget.
    LiveProcessSource();
    // A /proc tree elsewhere (tests), the user to count as "own", when the
    // machine booted (seconds since the epoch), clock ticks per second, page
    // size and the descriptors it may keep (the program's when none).
    LiveProcessSource(std::string procRoot, uint32_t myUID, double bootEpoch, long ticksPerSecond, long pageSize,
        DescriptorBudget* budget = nullptr);

    [[nodiscard]] bool othersHidden() const override { return m_othersHidden; }

    [[nodiscard]] std::vector<ProcRecord> snapshot(ProcessScope scope) override;
    [[nodiscard]] std::optional<std::string> cwd(int32_t pid) override;

    // Processes known from earlier readings (for tests and the benchmark's memory figure).
    [[nodiscard]] size_t knownCount() const { return m_known.size(); }
    // Stat files read so far (for tests: idle processes are not re-read).
    [[nodiscard]] uint64_t statReads() const { return m_statReads; }

private:
    struct Known {
        KeptFile stat;
        KeptFile schedstat;
        std::optional<ProcPidFiles::Stat> last; // its start time tells a new process from the one the pid named before
        std::optional<uint64_t> runtime; // nanoseconds run, from schedstat
        bool noSchedstat = false; // its schedstat could not be opened
        bool learned = false; // the slow facts have been read
        uint32_t uid = 0;
        bool kernelThread = false;
        std::optional<std::string> path;
        std::optional<std::string> name; // the program's own name, where comm does not give it
        std::optional<std::string> cgroup;
        std::optional<std::string> flatpakApp;
        std::optional<std::string> appImage;
        uint64_t anonBytes = 0; // resident anonymous memory
        uint64_t swapBytes = 0;
        std::optional<uint64_t> diskRead;
        std::optional<uint64_t> diskWrite;
        bool measured = false; // memory and disk have been read at least once
        uint64_t listed = 0; // the reading that last listed it
        uint64_t seen = 0; // the reading that last read it
    };

    // Finds (or makes) each listed process's entry, and notes the known ones
    // that are no longer listed.
    void noteListed();
    [[nodiscard]] std::optional<ProcRecord> read(int32_t pid, Known& known, ProcessScope scope, bool swapping);
    // Whether the process ran since its last reading, by its schedstat;
    // unknown when that cannot tell (several threads, no such file, no budget).
    enum class Ran { yes, no, unknown };
    [[nodiscard]] Ran ranSinceLastReading(Known& known);
    [[nodiscard]] bool parentGone(const ProcPidFiles::Stat& stat) const;
    // The text of the process's stat file; a process that is not the one
    // `known` was about starts over with nothing known.
    [[nodiscard]] std::optional<std::string_view> readStat(Known& known);
    // The program ran out of descriptors: closes the kept ones and keeps
    // fewer from now on. False when there were none to give back.
    bool giveBackDescriptors();
    void learnSlowFacts(const std::string& folder, Known& known, const std::string& comm);
    void learnPackage(const std::string& folder, Known& known);
    void measure(const std::string& folder, Known& known, bool own, bool swapping);
    [[nodiscard]] bool machineSwaps();
    // "<folder>/<name>" in a buffer reused for every file of every process.
    [[nodiscard]] const std::string& fileOf(const std::string& folder, const char* name);

    std::string m_proc;
    bool m_othersHidden = false;
    uint32_t m_myUID;
    double m_bootEpoch;
    double m_ticksPerSecond;
    uint64_t m_pageSize;
    uint64_t m_readings = 0;
    uint64_t m_statReads = 0;
    DescriptorBudget& m_budget;
    ProcListing m_listing;
    std::vector<int32_t> m_pids;
    std::vector<Known*> m_listed; // the entry of each of m_pids
    std::vector<int32_t> m_gone; // known at the last reading, not listed at this one; sorted
    bool m_schedstatTells = true; // false on a kernel that keeps no scheduler statistics
    std::unordered_map<int32_t, Known> m_known; // by pid
    std::array<char, 4096> m_statText{};
    std::string m_buffer;
    std::string m_folder;
    std::string m_file;
};

} // namespace vexel
