#pragma once

#include "devservers/ActivityLog.h"
#include "devservers/ListenSocket.h"
#include "devservers/ProgramPlaces.h"
#include "processes/ProcRecord.h"
#include "rates/RateTracker.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexel {

// The project folder a server runs in.
struct ProjectInfo {
    std::string name; // the folder's last component
    std::string path;
    std::optional<std::string> marker; // the file that identified it (".git", "package.json"…)

    bool operator==(const ProjectInfo&) const = default;
};

// A process of the user's own that listens on a port and belongs to development work.
struct DevServer {
    ProcKey key;
    int32_t pid = 0;
    std::string name;
    std::string runtime; // "node", "python", "postgres"…
    std::optional<std::string> commandPath;
    std::optional<std::string> cwd;
    ProjectInfo project;
    std::vector<uint16_t> ports;
    std::vector<ListenSocket> sockets;
    double started = 0;
    double cpu = 0; // cores, now
    uint64_t memory = 0; // bytes
    std::optional<double> lastActive;
    std::optional<double> idleSince; // when its idleness began: its last activity
    bool isIdle = false;

    bool operator==(const DevServer&) const = default;
};

struct ProjectGroup {
    ProjectInfo project;
    std::vector<DevServer> servers;

    bool operator==(const ProjectGroup&) const = default;
};

namespace DevServers {

// The process names that count as developer servers wherever they run from.
[[nodiscard]] const std::vector<std::string_view>& runtimes();

// The files that mark a project's folder, in the order they are looked for.
[[nodiscard]] const std::vector<std::string_view>& markers();

// The runtime a process name stands for: the name itself when listed, or the
// name without a version suffix ("python3.11", "php-fpm8.2", "node22") or a
// note in parentheses ("next-server (v1").
[[nodiscard]] std::optional<std::string> runtimeOf(std::string_view name);

// The label shown for a runtime: "python" for Python and python3, "elixir" for beam.smp.
[[nodiscard]] std::string runtimeLabel(std::string_view name);

// Whether a listening process is a developer server: the user's own, not a
// zombie, a runtime or a program started from a folder in the home folder
// (outside the apps' data folders), and not a system program unless it is a
// runtime. `places` says where the platform keeps system programs and app data.
[[nodiscard]] bool isDevServer(const ProcRecord& record, const std::optional<std::string>& cwd, const std::string& home,
    uint32_t myUID, const ProgramPlaces& places);

// The project folder of a working folder: the nearest folder upwards (below
// the home folder and "/") holding a marker, else the working folder itself.
[[nodiscard]] ProjectInfo project(
    const std::string& cwd, const std::string& home, const std::function<bool(const std::string&)>& exists);

struct Inputs {
    const std::vector<ListenSocket>& listeners;
    const std::vector<ProcRecord>& records;
    const RateTracker::Rates& cpuRates;
    std::function<std::optional<std::string>(int32_t pid)> cwd;
    std::string home;
    uint32_t myUID = 0;
    std::function<bool(const std::string&)> exists;
    double now = 0;
    double idleAfter = 172800; // seconds
    ProgramPlaces places = ProgramPlaces::macOS();
};

// The developer servers grouped by project (by project name, then path; the
// servers of a project by first port); a server whose working folder can't
// be read is a group of its own, named after itself. Updates and prunes the
// activity log.
[[nodiscard]] std::vector<ProjectGroup> build(const Inputs& inputs, ActivityLog& log);

} // namespace DevServers

} // namespace vexel
