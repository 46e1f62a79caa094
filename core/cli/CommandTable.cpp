#include "cli/CommandTable.h"

#include "grouping/AppSort.h"
#include "history/HistoryRange.h"

namespace vexel::CommandTable {

namespace {

// The column where summaries start, after two spaces of indent.
constexpr size_t summaryColumn = 34;

std::string padded(std::string text)
{
    text.resize(std::max(text.size() + 1, summaryColumn), ' ');
    return text;
}

std::vector<std::string> sortKeys()
{
    std::vector<std::string> keys;
    for (const auto sort : {AppSort::cpu, AppSort::memory, AppSort::energy, AppSort::disk, AppSort::network})
        keys.push_back(rawValue(sort));
    return keys;
}

std::vector<std::string> historyRanges()
{
    std::vector<std::string> ranges;
    for (const auto range : allHistoryRanges)
        ranges.push_back(rawValue(range));
    return ranges;
}

// "a, b, c" or, with `last`, "a, b last c".
std::string listed(const std::vector<std::string>& words, const std::string& last = ",")
{
    std::string text;
    for (size_t i = 0; i < words.size(); ++i)
        text += (i == 0 ? "" : (i + 1 == words.size() ? last + " " : ", ")) + words[i];
    return text;
}

Option dataDir()
{
    return {{"--data-dir"}, "DIR",
        "read the history and settings in DIR instead of VEXEL_DATA_DIR or ~/.local/share/vexel (a system "
        "recorder's is /var/lib/vexel)",
        {}, false};
}

Program makeCli(Platform platform)
{
    Program vexel;
    vexel.name = "vexel";
    vexel.headline = "vexel \u2014 what your " + machineWord(platform) + " is doing, from the Vexel app (read-only).";
    vexel.purpose = "what your computer is doing, from the Vexel app (read-only)";
    vexel.description = {
        "vexel prints what the computer is doing now and what it did: system readings, the busiest apps (processes "
        "grouped into the apps, service families and tools that own them), listening ports, dev servers by project, "
        "Docker containers, and the history and spikes that Vexel's recorder keeps.",
        "It never changes anything. Live readings are taken when it runs; history comes from the file the desktop "
        "app or vexel-recorder writes. With no command it prints the status.",
    };
    vexel.commands = {
        {"status", "", "CPU, memory, disk, network, GPU, battery, thermal", {}},
        {"top", "[-n N] [--sort KEY]", "busiest apps (KEY: " + listed(sortKeys()) + ")", {}},
        {"app", "NAME", "one app's processes", {}},
        {"ports", "", "listening TCP ports", {}},
        {"servers", "", "dev servers by project, idle ones flagged", {}},
        {"docker", "", "Docker containers", {}},
        {"history", "[RANGE]", listed(historyRanges(), " or"), historyRanges()},
        {"spikes", "[--hours N]", "what happened (default: last 24 hours)", {}},
        {"mcp", "", "run the read-only MCP server on stdio", {}},
    };
    vexel.options = {
        {{"--json"}, "", "print JSON instead of a table", {}, true},
        {{"-h", "--help"}, "", "this help", {}, true},
        {{"-n", "--limit"}, "N", "how many apps top lists (default 10)", {}, false},
        {{"--sort", "-s"}, "KEY", "the order of top: " + listed(sortKeys()), sortKeys(), false},
        {{"--hours"}, "N", "how far back spikes looks (default 24)", {}, false},
        dataDir(),
        {{"--version"}, "", "the version", {}, false},
    };
    vexel.environment = {
        {"VEXEL_DATA_DIR", "the folder of the history and settings, when --data-dir is not given"},
        {"XDG_DATA_HOME", "without either, the folder is $XDG_DATA_HOME/vexel (~/.local/share/vexel)"},
    };
    vexel.exitStatus = {"0 the report was printed", "1 a report failed, or its output could not be written",
        "2 the command line was wrong"};
    vexel.seeAlso = {"vexel-app(1)", "vexel-recorder(1)"};
    return vexel;
}

Program makeApp()
{
    Program app;
    app.name = "vexel-app";
    app.headline = "vexel-app \u2014 the Vexel desktop app.";
    app.purpose = "the Vexel system monitor's window and panel items";
    app.description = {
        "vexel-app opens Vexel's window: the machine's readings, its apps, history and spikes, ports, dev servers and "
        "containers, with items in the panel's status area. It records history while it runs, unless vexel-recorder "
        "already does; it is the only part of Vexel that can quit an app or stop a process, and it asks first.",
        "A second start brings the running window forward instead of opening another.",
    };
    app.options = {
        {{"--hidden"}, "", "start with the window closed, only the panel items showing", {}, true},
        {{"--quit"}, "", "quit the running Vexel", {}, true},
        {{"--headless"}, "", "record without a window: starts vexel-recorder with the other options", {}, true},
        {{"--mcp"}, "", "run the read-only MCP server on stdio", {}, true},
        {{"--cli"}, "", "the command line: vexel-app --cli status is vexel status", {}, true},
    };
    app.environment = {
        {"VEXEL_DATA_DIR", "the folder of the history and settings (default ~/.local/share/vexel)"},
        {"VEXEL_SNAPSHOT_DIR", "draw every page of the demo world into PNG files in this folder, then quit"},
    };
    app.exitStatus = {"0 Vexel was quit", "1 it could not start (no display, a snapshot folder it cannot write)"};
    app.seeAlso = {"vexel(1)", "vexel-recorder(1)"};
    return app;
}

Program makeRecorder()
{
    Program recorder;
    recorder.name = "vexel-recorder";
    recorder.headline = "vexel-recorder \u2014 records the machine's history for Vexel, with no window.";
    recorder.purpose = "record the machine's history for Vexel, and serve it to Prometheus";
    recorder.description = {
        "vexel-recorder samples the machine at the settings' interval and keeps a year of history in "
        "history.sqlite in its data folder, for vexel history, vexel spikes, the MCP server and the window. It runs "
        "until SIGTERM, SIGINT or SIGHUP, then writes the minute still waiting.",
        "Only one process records a data folder. While the window or another recorder holds it, vexel-recorder says "
        "so once and waits, then takes over when the other stops.",
        "With --metrics it serves the readings it takes as OpenMetrics text at /metrics for Prometheus: the "
        "system's readings as gauges, the busiest apps' CPU, disk and network as counters and their memory as a "
        "gauge, dev servers, strain levels and spikes seen. It never puts process arguments, paths or user names in "
        "a label. It binds where --metrics says; any address but loopback needs --metrics-token-file, a file "
        "holding the token that scrapers send as Authorization: Bearer (Prometheus's "
        "authorization.credentials_file). --metrics-file writes the same text atomically at each tick, for "
        "node_exporter's textfile collector.",
        "Installed as a package, it runs as the user unit vexel-recorder.service (systemctl --user enable --now "
        "vexel-recorder) or, for a machine with no login, the system unit vexel-recorder-system.service, which "
        "keeps its history in /var/lib/vexel.",
    };
    recorder.commands = {{"", "[OPTIONS]", "record until SIGTERM, SIGINT or SIGHUP", {}}};
    Option data = dataDir();
    data.summary = "record into DIR instead of VEXEL_DATA_DIR or ~/.local/share/vexel";
    data.inHelp = true;
    recorder.options = {
        data,
        {{"--metrics"}, "HOST:PORT", "serve OpenMetrics at http://HOST:PORT/metrics (Vexel's port is 9649)", {}, true},
        {{"--metrics-token-file"}, "PATH", "the bearer token scrapers must send; needed off loopback", {}, true},
        {{"--metrics-file"}, "PATH", "write the same text to PATH at each tick", {}, true},
        {{"-h", "--help"}, "", "this help", {}, true},
        {{"--version"}, "", "the version", {}, true},
    };
    recorder.environment = {
        {"VEXEL_DATA_DIR", "the data folder, when --data-dir is not given (default ~/.local/share/vexel)"},
    };
    recorder.exitStatus = {"0 stopped by a signal, with every reading written",
        "1 the history could not be opened or its last minute written, or the metrics could not be served",
        "2 the command line was wrong"};
    recorder.seeAlso = {"vexel(1)", "vexel-app(1)", "systemd.exec(5)"};
    return recorder;
}

} // namespace

const Program& cli(Platform platform)
{
    static const Program onMac = makeCli(Platform::macOS);
    static const Program onLinux = makeCli(Platform::linux);
    return platform == Platform::macOS ? onMac : onLinux;
}

const Program& app()
{
    static const Program program = makeApp();
    return program;
}

const Program& recorder()
{
    static const Program program = makeRecorder();
    return program;
}

std::string usage(const Program& program)
{
    std::string text = program.headline + "\n\nUsage:\n";
    for (const auto& command : program.commands) {
        std::string line = program.name;
        for (const auto* part : {&command.name, &command.arguments})
            if (!part->empty())
                line += " " + *part;
        text += "  " + padded(line) + command.summary + "\n";
    }
    text += "\nOptions:\n";
    for (const auto& option : program.options) {
        if (!option.inHelp)
            continue;
        std::string spelled;
        for (const auto& spelling : option.spellings)
            spelled += (spelled.empty() ? "" : ", ") + spelling;
        if (!option.value.empty())
            spelled += " " + option.value;
        text += "  " + padded(spelled) + option.summary + "\n";
    }
    text.pop_back();
    return text;
}

} // namespace vexel::CommandTable
