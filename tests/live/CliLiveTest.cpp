// The real `vexel` binary on this machine, with data folders of the tests' own.

#include "history/HistoryStore.h"
#include "io/Files.h"
#include "support/ChildProcess.h"
#include "support/RunTool.h"
#include "support/TempFolder.h"
#include "support/TraceLog.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sqlite3.h>

#include <cmath>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace vexel;
using namespace vexel::testing;
using nlohmann::json;

namespace {

const std::string vexelBinary = std::string(VEXEL_BINARY_DIR) + "/src/vexel";

ToolResult vexelIn(const std::filesystem::path& data, std::vector<std::string> args, const std::string& input = "")
{
    args.insert(args.begin(), vexelBinary);
    return runTool(args, {{{"VEXEL_DATA_DIR", data.string()}}, input});
}

json jsonOf(const ToolResult& result)
{
    const json parsed = json::parse(result.out, nullptr, false);
    EXPECT_FALSE(parsed.is_discarded()) << result.out << result.err;
    return parsed;
}

void run(sqlite3* db, const std::string& sql)
{
    char* error = nullptr;
    ASSERT_EQ(::sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &error), SQLITE_OK) << (error ? error : "") << sql;
}

// Two hours of one-minute raw samples ending now, written straight with SQL
// in the file format the app keeps: calm at 5 % CPU, with a 15-minute spike at
// 92 % half an hour ago in which "Busy Builder" ran 10 cores.
void writeHistoryFile(const std::filesystem::path& file, double now)
{
    sqlite3* db = nullptr;
    ASSERT_EQ(::sqlite3_open(file.c_str(), &db), SQLITE_OK);
    run(db, "PRAGMA journal_mode=WAL");
    run(db,
        "CREATE TABLE sys(tier INTEGER NOT NULL, t REAL NOT NULL, dur REAL NOT NULL, cpu REAL, cpu_max REAL, "
        "mem REAL, mem_max REAL, pressure INTEGER, swap REAL, disk_r REAL, disk_w REAL, net_in REAL, net_out "
        "REAL, gpu REAL, gpu_max REAL, power REAL, battery REAL, thermal INTEGER, PRIMARY KEY(tier, t)) WITHOUT "
        "ROWID;"
        "CREATE TABLE apps(tier INTEGER NOT NULL, t REAL NOT NULL, app TEXT NOT NULL, name TEXT NOT NULL, dur "
        "REAL, cpu REAL, cpu_max REAL, mem REAL, energy REAL, disk REAL, net REAL, PRIMARY KEY(tier, t, app)) "
        "WITHOUT ROWID;"
        "CREATE TABLE meta(key TEXT PRIMARY KEY, value TEXT);"
        "INSERT INTO meta VALUES('schema', '1');");
    run(db, "BEGIN");
    const double end = std::floor(now / 60) * 60;
    for (int ago = 120; ago >= 1; --ago) {
        const double t = end - ago * 60.0;
        const bool spike = ago <= 30 && ago > 15;
        const std::string cpu = spike ? "0.92" : "0.05";
        run(db,
            "INSERT INTO sys VALUES(0, " + std::to_string(t) + ", 60, " + cpu + ", " + cpu
                + ", 0.4, 0.4, 0, 0, 1000, 2000, 3000, 4000, NULL, NULL, NULL, NULL, 0)");
        run(db,
            "INSERT INTO apps VALUES(0, " + std::to_string(t) + ", 'tool:builder', 'Busy Builder', 60, "
                + (spike ? "10" : "0.1") + ", 10, 1e8, 0, 0, 0)");
    }
    run(db, "COMMIT");
    ASSERT_EQ(::sqlite3_close(db), SQLITE_OK);
}

} // namespace

// A history that is there but cannot be read is an error with exit status 1,
// over the command line and the MCP server alike; never a quiet day.
TEST(CliLive, ABrokenHistoryIsAnErrorNotAQuietDay)
{
    TempFolder corrupt("vexel-live");
    std::ofstream(corrupt.path() / "history.sqlite") << std::string(10000, 'Z');
    const std::string notADatabase = "Couldn't open the history: file is not a database\n";
    for (const auto& command : std::vector<std::vector<std::string>>{{"history", "--json"}, {"spikes"}}) {
        const auto result = vexelIn(corrupt.path(), command);
        EXPECT_EQ(result.status, 1) << command[0];
        EXPECT_TRUE(result.out.empty()) << result.out;
        EXPECT_EQ(result.err, notADatabase);
    }
    const auto mcp = vexelIn(corrupt.path(), {"mcp"},
        R"({"jsonrpc":"2.0","id":1,"method":"tools/call","params":{"name":"history"}})"
        "\n");
    // The same folder named by --data-dir, anywhere on the line, over VEXEL_DATA_DIR's.
    const auto named = runTool(
        {vexelBinary, "history", "--data-dir", corrupt.path().string()}, {{{"VEXEL_DATA_DIR", "/nonexistent"}}, ""});
    EXPECT_EQ(named.status, 1);
    EXPECT_EQ(named.err, notADatabase);
    const json answer = jsonOf(mcp);
    EXPECT_EQ(answer["result"]["isError"], true);
    EXPECT_EQ(answer["result"]["content"][0]["text"], "Couldn't open the history: file is not a database");

    // Unreadable: as root, without the capabilities that pass over file permissions.
    TempFolder locked("vexel-live");
    writeHistoryFile(locked.path() / "history.sqlite", static_cast<double>(std::time(nullptr)));
    std::filesystem::permissions(locked.path() / "history.sqlite", std::filesystem::perms::none);
    std::vector<std::string> argv{vexelBinary, "history"};
    if (::geteuid() == 0)
        argv.insert(argv.begin(), {"setpriv", "--bounding-set=-dac_override,-dac_read_search", "--"});
    const auto unreadable = runTool(argv, {{{"VEXEL_DATA_DIR", locked.path().string()}}, ""});
    EXPECT_EQ(unreadable.status, 1);
    EXPECT_EQ(unreadable.err, "Couldn't open the history: unable to open database file (Permission denied)\n");
    EXPECT_TRUE(unreadable.out.empty());

    // None at all: an error too, and the folder is not made for it.
    const auto missing = corrupt.path() / "never-made";
    EXPECT_EQ(vexelIn(missing, {"history"}).status, 1);
    EXPECT_EQ(vexelIn(missing, {"status"}).status, 0);
    EXPECT_FALSE(std::filesystem::exists(missing));
}

// Read-only by construction, watched from outside: a whole command-line and
// MCP session under strace sends no signal and opens no file for writing.
TEST(CliLive, ASessionSendsNoSignalAndWritesNoFile)
{
    TempFolder data("vexel-live");
    TempFolder logs("vexel-trace");
    writeHistoryFile(data.path() / "history.sqlite", static_cast<double>(std::time(nullptr)));
    std::string requests = R"({"jsonrpc":"2.0","id":0,"method":"initialize","params":{"protocolVersion":"2025-06-18"}})"
                           "\n";
    int id = 1;
    for (const char* tool :
        {"system_status", "top_apps", "history", "spikes", "dev_servers", "listening_ports", "docker_containers"})
        requests += R"({"jsonrpc":"2.0","id":)" + std::to_string(id++) + R"(,"method":"tools/call","params":{"name":")"
            + tool + "\"}}\n";
    requests
        += R"({"jsonrpc":"2.0","id":99,"method":"tools/call","params":{"name":"app_processes","arguments":{"name":"Kernel"}}})"
           "\n";
    const std::vector<std::vector<std::string>> sessions{
        {"status"}, {"apps", "--json"}, {"servers"}, {"docker"}, {"ports"}, {"history", "week"}, {"spikes"}, {"mcp"}};
    for (size_t i = 0; i < sessions.size(); ++i) {
        const auto log = logs.path() / ("trace-" + std::to_string(i));
        std::vector<std::string> argv{"strace", "-f", "-qq", "-o", log.string(), "-e",
            "trace=kill,tgkill,tkill,openat,execve,clone,clone3,fork,vfork", vexelBinary};
        argv.insert(argv.end(), sessions[i].begin(), sessions[i].end());
        // LeakSanitizer cannot work under ptrace; in a sanitizer build the leak check is left to the other tests.
        const std::map<std::string, std::string> environment{
            {"VEXEL_DATA_DIR", data.path().string()}, {"ASAN_OPTIONS", "detect_leaks=0:abort_on_error=1"}};
        const auto result = runTool(argv, {environment, sessions[i][0] == "mcp" ? requests : ""});
        ASSERT_EQ(result.status, 0) << sessions[i][0] << result.err;
        const auto findings = readTrace(Files::read(log.string(), 64 << 20).value_or(""), vexelBinary);
        EXPECT_GT(findings.opens, 3u) << sessions[i][0]; // the log was read
        EXPECT_TRUE(findings.signalsSent.empty()) << sessions[i][0] << ": " << findings.signalsSent.front();
        EXPECT_TRUE(findings.writeOpens.empty()) << sessions[i][0] << ": " << findings.writeOpens.front();
        if (sessions[i][0] == "mcp") {
            EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), id + 1);
        }
    }
}

namespace {

// `vexel top --json` as the user nobody, in a mount namespace of its own
// whose /proc is a fresh instance mounted with `procOptions`. Runs in a forked
// child; its standard output comes back. The program is a copy in `data`, a
// folder nobody can reach: the build folder may sit where nobody can't (a
// build in root's home).
std::string topAsNobodyWithProc(const std::filesystem::path& data, const char* procOptions)
{
    const auto program = data / "vexel";
    std::filesystem::copy_file(vexelBinary, program, std::filesystem::copy_options::overwrite_existing);
    std::filesystem::permissions(program,
        std::filesystem::perms::owner_all | std::filesystem::perms::group_read | std::filesystem::perms::group_exec
            | std::filesystem::perms::others_read | std::filesystem::perms::others_exec);
    const auto run = runForked([&] {
        constexpr uid_t nobody = 65534;
        const bool ready = ::unshare(CLONE_NEWNS) == 0
            && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
            && ::mount("proc", "/proc", "proc", 0, procOptions) == 0 && ::setgroups(0, nullptr) == 0
            && ::setgid(nobody) == 0 && ::setuid(nobody) == 0;
        if (!ready)
            ::_exit(125);
        const std::string dataVariable = "VEXEL_DATA_DIR=" + data.string();
        char* argv[]
            = {const_cast<char*>(program.c_str()), const_cast<char*>("top"), const_cast<char*>("--json"), nullptr};
        char* envp[] = {const_cast<char*>(dataVariable.c_str()), const_cast<char*>("HOME=/nonexistent"), nullptr};
        ::execve(argv[0], argv, envp);
    });
    EXPECT_TRUE(WIFEXITED(run.status) && WEXITSTATUS(run.status) == 0) << "status " << run.status;
    return run.output;
}

} // namespace

// With /proc mounted hidepid, other users' processes are not there to count:
// the report says so instead of passing the user's own for the machine's.
TEST(CliLive, HiddenProcessesAreSaidToBeHidden)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to mount /proc in a namespace of its own; CI runs as root";
    TempFolder data("vexel-live");
    std::filesystem::permissions(data.path(), std::filesystem::perms::all);
    const json hidden = json::parse(topAsNobodyWithProc(data.path(), "hidepid=invisible"), nullptr, false);
    ASSERT_TRUE(hidden.is_object()) << hidden;
    EXPECT_EQ(hidden["processes_note"],
        "other users' processes hidden: /proc is mounted with hidepid, so only your own are counted");
    EXPECT_LT(hidden["process_count"].get<int>(), 10); // nobody runs only this vexel
    const json plain = json::parse(topAsNobodyWithProc(data.path(), ""), nullptr, false);
    ASSERT_TRUE(plain.is_object()) << plain;
    EXPECT_FALSE(plain.contains("processes_note"));
    EXPECT_GT(plain["process_count"].get<int>(), hidden["process_count"].get<int>());
}

// The headless recorder for real: it says where it records, a second one
// waits for it instead of writing beside it, and on SIGHUP (its terminal
// closing; SIGTERM and SIGINT are the same signals to it) it writes what was
// waiting and saves when it last ran, so that `vexel history` reads the
// recording back; then the second takes over.
TEST(CliLive, TheHeadlessRecorderRecordsUntilItIsStopped)
{
    TempFolder data("vexel-live");
    std::ofstream(data.path() / "settings.json") << R"({"sampleSeconds": 1})";
    const std::string app = std::string(VEXEL_BINARY_DIR) + "/src/vexel-app";
    ::setenv("VEXEL_DATA_DIR", data.path().c_str(), 1);
    ChildProcess recorder({app, "--headless"}, {{}, true, true});
    ::unsetenv("VEXEL_DATA_DIR");
    ASSERT_NE(recorder.pid(), 0);
    const auto history = data.path() / "history.sqlite";
    EXPECT_EQ(recorder.readLine(), "Recording to " + history.string() + " every 1 s.");

    // A second recorder (vexel-app --headless hands over to vexel-recorder)
    // waits for the first, saying so once, and records once it stops.
    ::setenv("VEXEL_DATA_DIR", data.path().c_str(), 1);
    ChildProcess second({app, "--headless"}, {{}, true, true});
    ::unsetenv("VEXEL_DATA_DIR");
    EXPECT_EQ(second.readLine(),
        "Vexel is already recording on this computer (process " + std::to_string(recorder.pid())
            + "); this one waits and takes over once it stops.");

    // Ticks a second apart: the first frame has no interval, the next ones are kept.
    const auto started = std::chrono::steady_clock::now();
    ASSERT_EQ(::waitpid(recorder.pid(), nullptr, WNOHANG), 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(3500));
    const int status = recorder.stop(SIGHUP);
    ASSERT_TRUE(WIFEXITED(status)) << status;
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(recorder.readLine(), "Stopped recording.");
    EXPECT_EQ(second.readLine(), "Recording to " + history.string() + " every 1 s.");
    EXPECT_EQ(second.stop(SIGTERM), 0);
    EXPECT_EQ(second.readLine(), "Stopped recording.");
    const HistoryStore stored(history, HistoryAccess::readOnly);
    EXPECT_GE(stored.rowCount(HistoryTier::raw, HistoryTable::sys), 3) << "the minute that waited is written";
    const json today = jsonOf(vexelIn(data.path(), {"history", "today", "--json"}));
    EXPECT_FALSE(today["busiest_apps"].empty()) << today.dump(1);
    const json settings = json::parse(Files::read((data.path() / "settings.json").string()).value_or("{}"));
    const std::chrono::duration<double> ran = std::chrono::steady_clock::now() - started;
    EXPECT_NEAR(settings["lastSeen"].get<double>(), static_cast<double>(::time(nullptr)), 5 + ran.count());
    EXPECT_EQ(settings["sampleSeconds"], 1.0); // the user's settings kept
}

// Snapshot mode: the demo world's pictures, offscreen, the same from run to
// run, and only those asked for.
TEST(CliLive, SnapshotModeWritesTheSamePicturesEveryTime)
{
    TempFolder first("vexel-snap");
    TempFolder second("vexel-snap");
    TempFolder some("vexel-snap");
    const std::string app = std::string(VEXEL_BINARY_DIR) + "/src/vexel-app";
    for (const auto* folder : {&first, &second})
        ASSERT_EQ(runTool({app}, {{{"VEXEL_SNAPSHOT_DIR", folder->path().string()}}, ""}).status, 0);
    // Every page (calm and strained), staged view, dropdown and the panel strip, light and dark.
    size_t pictures = 0;
    for (const auto& entry : std::filesystem::directory_iterator(first.path())) {
        const auto name = entry.path().filename().string();
        const auto one = Files::read(entry.path().string(), 16 << 20);
        ASSERT_TRUE(one) << name;
        EXPECT_EQ(one, Files::read((second.path() / name).string(), 16 << 20)) << name << " differs between runs";
        ++pictures;
    }
    EXPECT_GT(pictures, 80U);
    ASSERT_EQ(runTool({app},
                  {{{"VEXEL_SNAPSHOT_DIR", some.path().string()}, {"VEXEL_SNAPSHOT_ONLY", "confirm-forcequit-"}}, ""})
                  .status,
        0);
    std::vector<std::string> written;
    for (const auto& entry : std::filesystem::directory_iterator(some.path()))
        written.push_back(entry.path().filename().string());
    std::sort(written.begin(), written.end());
    EXPECT_EQ(written, (std::vector<std::string>{"confirm-forcequit-dark.png", "confirm-forcequit-light.png"}));

    // A folder no picture can be written in (not even by root) fails at once, saying why.
    const auto refused = runTool({app}, {{{"VEXEL_SNAPSHOT_DIR", "/proc"}}, ""});
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("Couldn't write pictures in /proc: "), std::string::npos) << refused.err;
}

// A report that never reached its file (the disk full) fails, and says so.
TEST(CliLive, AReportWrittenToAFullDiskIsAFailure)
{
    const auto run = runForked([] {
        ::dup2(STDOUT_FILENO, STDERR_FILENO); // what it says comes to the test
        ::dup2(::open("/dev/full", O_WRONLY), STDOUT_FILENO);
        ::execl(vexelBinary.c_str(), "vexel", "status", nullptr);
        ::_exit(127);
    });
    EXPECT_TRUE(WIFEXITED(run.status) && WEXITSTATUS(run.status) == 1) << run.status;
    EXPECT_EQ(run.output, "vexel: couldn't write the output: No space left on device\n");
}
