#include "cli/Arguments.h"
#include "cli/CliTestSupport.h"

using namespace vexel;
using namespace vexel::testing;

namespace {

size_t lineCount(const std::string& text)
{
    return static_cast<size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
}

const std::string unknownSort = "Unknown sort \"CPU\". Use cpu, memory, energy, disk or network.";
const std::string readOnly = "vexel is read-only. Open Vexel to stop a server or quit an app \u2014 it shows what "
                             "will happen and asks first.";

} // namespace

TEST(CliArguments, IntegersAreStrictNumbersFollowStrtod)
{
    using Arguments::parseInteger;
    EXPECT_EQ(parseInteger("12"), 12);
    EXPECT_EQ(parseInteger("-3"), -3);
    EXPECT_EQ(parseInteger("+4"), 4);
    EXPECT_EQ(parseInteger("9223372036854775807"), INT64_MAX);
    EXPECT_EQ(parseInteger("-9223372036854775808"), INT64_MIN);
    for (const char* bad : {"", "-", "+", "ten", "3.0", " 3", "3 ", "0x10", "9223372036854775808", "1e3", "--3",
             "44444444444444444444" /* wrapped round 2^64 once: found by the fuzzer */})
        EXPECT_FALSE(parseInteger(bad)) << bad;
    using Arguments::parseNumber;
    EXPECT_EQ(parseNumber("2.5"), 2.5);
    EXPECT_EQ(parseNumber("1e2"), 100.0);
    EXPECT_EQ(parseNumber(" 3"), 3.0); // strtod skips leading space
    for (const char* bad : {"", "x", "2.5h", "3 ", "--"})
        EXPECT_FALSE(parseNumber(bad)) << bad;
}

TEST_F(CliOnDemoWorld, RefusalsAndFailuresGoToErrOnly)
{
    using Args = std::vector<std::string>;
    const std::string noHistory = "Vexel has no history yet. Open Vexel and leave it running.";
    const std::string notADatabase = "Couldn't open the history: file is not a database";
    const struct {
        Args args;
        History history;
        int status;
        std::string err;
    } cases[] = {
        {{"top", "--sort", "CPU"}, History::recorded, 2, unknownSort}, // sort keys are case-sensitive
        {{"--cli", "status"}, History::recorded, 2,
            "Unknown command \"--cli\".\n\n" + VexelCLI::usage(Platform::macOS)},
        {{"stop", "node"}, History::recorded, 2, readOnly},
        {{"kill", "1"}, History::recorded, 2, readOnly},
        {{"quit"}, History::recorded, 2, readOnly},
        {{"app"}, History::recorded, 2, "Which app? e.g. vexel app \"Google Chrome\""},
        {{"app", "Nothing", "Here"}, History::recorded, 1, "No running app matches \"Nothing Here\"."},
        {{"history", "fortnight"}, History::recorded, 2, "Use today, week, month or year."},
        {{"history"}, History::none, 1, noHistory},
        {{"spikes", "--json"}, History::none, 1, noHistory},
        // A broken file is an error, never a quiet day.
        {{"history", "--json"}, History::corrupt, 1, notADatabase},
        {{"spikes"}, History::corrupt, 1, notADatabase},
    };
    for (const auto& c : cases) {
        const auto result = run(c.args, c.history);
        EXPECT_EQ(result.status, c.status) << c.args[0];
        EXPECT_EQ(result.err, std::vector<std::string>{c.err}) << c.args[0];
        EXPECT_TRUE(result.out.empty()) << c.args[0];
    }
    // The status stands without today's totals when the history is broken.
    const auto status = run({"status"}, History::corrupt);
    EXPECT_EQ(status.status, 0);
    EXPECT_EQ(status.out.at(0).find("Today"), std::string::npos);
    EXPECT_NE(run({"status"}).out.at(0).find("Today"), std::string::npos);
}

TEST_F(CliOnDemoWorld, OptionsStandAnywhereAndBadValuesFallBack)
{
    using Args = std::vector<std::string>;
    const std::pair<Args, Args> same[] = {
        {{"-n", "3", "top"}, {"top", "-n", "3"}}, {{"top", "--limit", "3"}, {"top", "-n", "3"}},
        {{"top", "-n"}, {"top"}}, // "-n" stays as an argument top ignores
        {{"-n", "ten", "top"}, {"top"}}, {{"history", "week", "extra"}, {"history", "week"}},
        {{"spikes", "--hours", "x"}, {"spikes"}}, // back to 24 hours
        {{"spikes", "--hours", "nan", "--json"}, {"spikes", "--json"}},
        {{"help", "--json"}, {"--help"}}, // help, not JSON
        {{"-h"}, {"--help"}}, {{"--version"}, {"version"}}, {{"top", "-s", "memory"}, {"--sort", "memory", "top"}},
        {{"--json"}, {"status", "--json"}}, // the flag goes before the command is chosen
    };
    for (const auto& [one, other] : same)
        EXPECT_EQ(run(one).out, run(other).out) << one[0] << " " << one.back();

    EXPECT_EQ(lineCount(run({"top"}).out.at(0)), 12u); // heading, ten apps, footer
    EXPECT_EQ(lineCount(run({"top", "-n", "3"}).out.at(0)), 5u);
    EXPECT_EQ(lineCount(run({"top", "-n", "0"}).out.at(0)), 3u);
    EXPECT_EQ(run({}).out.at(0).rfind("CPU       ", 0), 0u);
    EXPECT_EQ(run({"--help"}).out, std::vector<std::string>{VexelCLI::usage(Platform::macOS)});
    EXPECT_EQ(run({"version"}).out, std::vector<std::string>{"vexel 9.9"});
    EXPECT_EQ(run({"app", "Google", "Chrome"}).out.at(0).rfind("Google Chrome  ", 0), 0u);
    EXPECT_EQ(
        run({"spikes", "--hours", "1.5"}).out, std::vector<std::string>{"Nothing unusual in the last 1.5 hours."});
    EXPECT_EQ(run({"--hours", "1", "spikes"}).out, std::vector<std::string>{"Nothing unusual in the last 1 hours."});
    EXPECT_NE(run({"spikes"}).out.at(0).find("Google Chrome"), std::string::npos);
}
