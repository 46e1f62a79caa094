#include "recording/RecorderArguments.h"

#include "cli/Arguments.h"
#include "cli/CommandTable.h"

namespace vexel {

namespace {

// The value of `spelling`, taken out of `args`; an error when it stands last.
std::optional<std::string> valueOf(
    std::vector<std::string>& args, const std::string& spelling, RecorderArguments& parsed)
{
    auto value = Arguments::takeOption(args, {spelling});
    if (!value && Arguments::takeFlag(args, spelling) && !parsed.error)
        parsed.error = spelling + " needs a value";
    return value;
}

} // namespace

RecorderArguments RecorderArguments::parse(std::vector<std::string> args)
{
    RecorderArguments parsed;
    parsed.help = Arguments::takeFlag(args, "--help") | Arguments::takeFlag(args, "-h");
    parsed.version = Arguments::takeFlag(args, "--version");
    parsed.dataDir = valueOf(args, "--data-dir", parsed);
    parsed.metrics = valueOf(args, "--metrics", parsed);
    parsed.metricsFile = valueOf(args, "--metrics-file", parsed);
    parsed.metricsTokenFile = valueOf(args, "--metrics-token-file", parsed);
    if (!args.empty() && !parsed.error)
        parsed.error = "unknown argument \"" + args.front() + "\"";
    if (parsed.metricsTokenFile && !parsed.metrics && !parsed.error)
        parsed.error = "--metrics-token-file goes with --metrics";
    return parsed;
}

std::string recorderUsage()
{
    return CommandTable::usage(CommandTable::recorder());
}

} // namespace vexel
