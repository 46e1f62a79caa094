#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vexel::ProcPidFiles {

// The fields of /proc/<pid>/stat that a process record needs. Times are in
// clock ticks; `comm` is the kernel's name, which may hold blanks and ")".
struct Stat {
    std::string comm;
    char state = '?';
    int32_t ppid = 0;
    uint64_t flags = 0;
    uint64_t utime = 0;
    uint64_t stime = 0;
    uint64_t startTime = 0; // ticks after boot
    uint64_t rssPages = 0; // resident pages of every kind; 0 when the line stops before it
    uint64_t threads = 0;

    [[nodiscard]] bool isKernelThread() const { return (flags & 0x00200000) != 0; } // PF_KTHREAD
    [[nodiscard]] bool isZombie() const { return state == 'Z' || state == 'X'; }

    bool operator==(const Stat&) const = default;
};

// The name is the text between the first "(" and the last ")"; the fields
// after it are split on blanks. Nothing when the line is cut short.
[[nodiscard]] std::optional<Stat> parseStat(std::string_view text);

// /proc/<pid>/schedstat: the nanoseconds the process's main thread has run
// ("2519459 632941 2" → 2519459). A kernel that keeps no scheduler
// statistics writes "0 0 0".
[[nodiscard]] std::optional<uint64_t> parseSchedstatRuntime(std::string_view text);

// /proc/<pid>/statm: resident pages minus shared (file-backed and shmem)
// pages, which is the anonymous resident memory, in pages.
[[nodiscard]] std::optional<uint64_t> parseStatmAnonPages(std::string_view text);

// The fields of /proc/<pid>/status that statm and stat do not give.
struct Status {
    std::optional<uint32_t> uid; // effective user id
    std::optional<uint64_t> rssAnon; // bytes
    std::optional<uint64_t> vmSwap; // bytes
    bool kernelThread = false;

    bool operator==(const Status&) const = default;
};

[[nodiscard]] Status parseStatus(std::string_view text);

// Block-layer bytes of /proc/<pid>/io (read_bytes, write_bytes).
struct Io {
    uint64_t readBytes = 0;
    uint64_t writeBytes = 0;

    bool operator==(const Io&) const = default;
};

[[nodiscard]] std::optional<Io> parseIo(std::string_view text);

// The unified hierarchy's path from /proc/<pid>/cgroup (the "0::" line), or on
// a pure v1 system the "name=systemd" line's. Nothing when neither is there.
[[nodiscard]] std::optional<std::string> parseCgroup(std::string_view text);

// What the /proc/<pid>/exe link says of the program.
struct ExeLink {
    std::string path; // without a " (deleted)" suffix
    bool deleted = false; // the file was replaced or removed on disk since it started
    bool inMemory = false; // a program run from a memfd: no file ever had this path

    bool operator==(const ExeLink&) const = default;
};

// Reads an exe link's target: "/usr/bin/vim.basic", "/usr/lib/x/y (deleted)",
// "/memfd:sealed-91173221a7ea (deleted)".
[[nodiscard]] ExeLink parseExeLink(std::string_view target);

// The last component of argv[0] in /proc/<pid>/cmdline (NUL-separated):
// "line_io_tools/binary_backend\0--uid\0…" → "binary_backend"; empty when there is none.
[[nodiscard]] std::string programName(std::string_view cmdline);

// The kernel keeps only the first 15 bytes of a program's name
// ("rust-analyzer-p"); when the executable's file name begins with them, it
// is the whole name. Otherwise (a renamed worker, an interpreter's script)
// the comm as it stands.
[[nodiscard]] std::string fullName(const std::string& comm, std::string_view exePath);

// The app id of a Flatpak sandbox's /.flatpak-info: `name` in [Application].
[[nodiscard]] std::optional<std::string> parseFlatpakInfo(std::string_view text);

// A variable of /proc/<pid>/environ (NUL-separated NAME=value); nothing when unset or empty.
[[nodiscard]] std::optional<std::string> environValue(std::string_view variables, std::string_view name);

// Whether the proc mount at `mountPoint` in a mountinfo text hides other
// users' processes: hidepid=1|2 (shown as noaccess, invisible) or subset=pid.
[[nodiscard]] bool procHidesOthers(std::string_view mountinfo, std::string_view mountPoint = "/proc");

} // namespace vexel::ProcPidFiles
