#include "cli/VexelCLI.h"

#include "cli/Arguments.h"
#include "cli/CommandTable.h"
#include "cli/ReportText.h"
#include "history/HistoryRange.h"

#include <exception>

namespace vexel::VexelCLI {

namespace {

using nlohmann::json;

constexpr long long topDefault = 10;
constexpr long long appsDefault = 200;
constexpr double hoursDefault = 24.0;

// The options, taken out of the arguments before the command is looked at.
struct Options {
    bool json = false;
    std::optional<long long> count;
    std::string sort = "cpu";
    double hours = hoursDefault;
};

Options takeOptions(std::vector<std::string>& args)
{
    Options options;
    options.json = Arguments::takeFlag(args, "--json");
    if (const auto count = Arguments::takeOption(args, {"-n", "--limit"}))
        options.count = Arguments::parseInteger(*count);
    if (const auto sort = Arguments::takeOption(args, {"--sort", "-s"}))
        options.sort = *sort;
    if (const auto hours = Arguments::takeOption(args, {"--hours"}))
        options.hours = Arguments::parseNumber(*hours).value_or(hoursDefault);
    return options;
}

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const auto& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

// Prints the report `make` gives: JSON, or the text `render` draws of it.
// A failing report prints only its error.
int print(const std::function<json()>& make, const std::function<std::string(const json&)>& render, bool asJSON,
    const Sink& out, const Sink& err)
{
    json report;
    try {
        report = make();
    } catch (const std::exception& error) {
        err(error.what());
        return 1;
    }
    out(asJSON ? prettyJSON(report) : render(report));
    return 0;
}

} // namespace

std::string usage(Platform platform)
{
    return CommandTable::usage(CommandTable::cli(platform));
}

std::string prettyJSON(const json& report)
{
    return report.dump(2, ' ', false, json::error_handler_t::replace);
}

int run(
    std::vector<std::string> args, VexelService& service, const std::string& version, const Sink& out, const Sink& err)
{
    const Options options = takeOptions(args);
    const std::string command = args.empty() ? "status" : args.front();
    const std::vector<std::string> rest = args.empty() ? args : std::vector<std::string>(args.begin() + 1, args.end());
    const auto report = [&](const std::function<json()>& make, const std::function<std::string(const json&)>& render) {
        return print(make, render, options.json, out, err);
    };

    if (command == "-h" || command == "--help" || command == "help") {
        out(usage(service.platform()));
        return 0;
    }
    if (command == "--version" || command == "version") {
        out("vexel " + version);
        return 0;
    }
    if (command == "status")
        return report([&] { return service.status(); }, statusText);
    if (command == "top" || command == "apps") {
        const auto sort = appSortFromRaw(options.sort);
        if (!sort) {
            err("Unknown sort \"" + options.sort + "\". Use cpu, memory, energy, disk or network.");
            return 2;
        }
        const long long limit = options.count.value_or(command == "apps" ? appsDefault : topDefault);
        return report([&] { return service.topApps(*sort, limit); }, appsText);
    }
    if (command == "app") {
        if (rest.empty()) {
            err("Which app? e.g. vexel app \"Google Chrome\"");
            return 2;
        }
        return report([&] { return service.appDetail(joined(rest)); }, appText);
    }
    if (command == "ports")
        return report([&] { return service.portsReport(); }, portsText);
    if (command == "servers" || command == "dev")
        return report([&] { return service.serversReport(); },
            [&service](const json& r) { return serversText(r, service.home()); });
    if (command == "docker")
        return report([&] { return service.dockerReport(); }, dockerText);
    if (command == "history") {
        const auto range = historyRangeFromRaw(rest.empty() ? "today" : rest.front());
        if (!range) {
            err("Use today, week, month or year.");
            return 2;
        }
        return report([&] { return service.history(*range); }, [](const json& r) { return historyText(r); });
    }
    if (command == "spikes")
        return report([&] { return service.spikes(options.hours); }, [](const json& r) { return spikesText(r); });
    if (command == "stop" || command == "kill" || command == "quit") {
        err("vexel is read-only. Open Vexel to stop a server or quit an app \u2014 it shows what will happen and asks "
            "first.");
        return 2;
    }
    err("Unknown command \"" + command + "\".\n\n" + usage(service.platform()));
    return 2;
}

} // namespace vexel::VexelCLI
