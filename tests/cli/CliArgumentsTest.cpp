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

TEST(CliArguments, OptionsAreTakenAnywhereAndATrailingOneStays)
{
    std::vector<std::string> args{"-n", "3", "top", "--sort", "memory", "--json", "x", "--json"};
    EXPECT_TRUE(Arguments::takeFlag(args, "--json"));
    EXPECT_EQ(Arguments::takeOption(args, {"-n", "--limit"}), "3");
    EXPECT_EQ(Arguments::takeOption(args, {"--sort", "-s"}), "memory");
    EXPECT_EQ(args, (std::vector<std::string>{"top", "x"}));
    std::vector<std::string> trailing{"top", "-n"};
    EXPECT_FALSE(Arguments::takeOption(trailing, {"-n", "--limit"}));
    EXPECT_EQ(trailing, (std::vector<std::string>{"top", "-n"}));
    std::vector<std::string> first{"--limit", "2", "-n", "5"}; // the first spelling found wins
    EXPECT_EQ(Arguments::takeOption(first, {"-n", "--limit"}), "2");
    EXPECT_EQ(first, (std::vector<std::string>{"-n", "5"}));
}

TEST_F(CliOnDemoWorld, CommandsOptionsAndExitStatuses)
{
    const auto topTen = run({"top"});
    ASSERT_EQ(topTen.status, 0);
    ASSERT_EQ(topTen.out.size(), 1u);
    EXPECT_EQ(lineCount(topTen.out[0]), 12u); // heading, ten apps, footer

    const auto before = run({"-n", "3", "top"});
    EXPECT_EQ(before.status, 0);
    EXPECT_EQ(lineCount(before.out.at(0)), 5u);
    EXPECT_EQ(run({"top", "-n", "3"}).out, before.out);
    EXPECT_EQ(run({"top", "--limit", "3"}).out, before.out);
    EXPECT_EQ(run({"top", "-n"}).out, topTen.out); // "-n" stays as an argument top ignores
    EXPECT_EQ(run({"-n", "ten", "top"}).out, topTen.out);
    EXPECT_EQ(run({"top", "-n", "0"}).out.size(), 1u);
    EXPECT_EQ(lineCount(run({"top", "-n", "0"}).out[0]), 3u);

    const auto apps = run({"apps", "--json"});
    const auto report = nlohmann::json::parse(apps.out.at(0));
    EXPECT_EQ(report["apps"].size(), std::min<size_t>(report["app_count"].get<size_t>(), 200));
    EXPECT_GT(report["apps"].size(), 10u);

    const auto badSort = run({"top", "--sort", "CPU"});
    EXPECT_EQ(badSort.status, 2);
    EXPECT_EQ(badSort.err, std::vector<std::string>{unknownSort});
    EXPECT_TRUE(badSort.out.empty());
    EXPECT_EQ(run({"top", "-s", "memory", "--json"}).status, 0);

    const auto json = run({"--json"});
    EXPECT_EQ(json.status, 0);
    EXPECT_TRUE(nlohmann::json::parse(json.out.at(0)).contains("cpu"));
    EXPECT_EQ(run({}).out.at(0).rfind("CPU       ", 0), 0u);

    const auto help = run({"help", "--json"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.out, std::vector<std::string>{VexelCLI::usage(Platform::macOS)});
    EXPECT_EQ(run({"-h"}).out, help.out);
    EXPECT_EQ(run({"--help"}).out, help.out);
    EXPECT_EQ(run({"version"}).out, std::vector<std::string>{"vexel 9.9"});
    EXPECT_EQ(run({"--version"}).status, 0);

    const auto cli = run({"--cli", "status"});
    EXPECT_EQ(cli.status, 2);
    EXPECT_EQ(cli.err, std::vector<std::string>{"Unknown command \"--cli\".\n\n" + VexelCLI::usage(Platform::macOS)});

    for (const char* word : {"stop", "kill", "quit"}) {
        const auto refused = run({word, "node"});
        EXPECT_EQ(refused.status, 2) << word;
        EXPECT_EQ(refused.err, std::vector<std::string>{readOnly}) << word;
    }
}

TEST_F(CliOnDemoWorld, AppHistoryAndSpikesArguments)
{
    const auto noName = run({"app"});
    EXPECT_EQ(noName.status, 2);
    EXPECT_EQ(noName.err, std::vector<std::string>{"Which app? e.g. vexel app \"Google Chrome\""});
    const auto chrome = run({"app", "Google", "Chrome"});
    EXPECT_EQ(chrome.status, 0);
    EXPECT_EQ(chrome.out.at(0).rfind("Google Chrome  ", 0), 0u);
    const auto missing = run({"app", "Nothing", "Here"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.err, std::vector<std::string>{"No running app matches \"Nothing Here\"."});
    EXPECT_TRUE(missing.out.empty());

    EXPECT_EQ(run({"history", "week", "extra"}).out, run({"history", "week"}).out);
    EXPECT_EQ(run({"history", "week"}).out.at(0).rfind("Week since ", 0), 0u);
    const auto badRange = run({"history", "fortnight"});
    EXPECT_EQ(badRange.status, 2);
    EXPECT_EQ(badRange.err, std::vector<std::string>{"Use today, week, month or year."});

    EXPECT_EQ(
        run({"spikes", "--hours", "1.5"}).out, std::vector<std::string>{"Nothing unusual in the last 1.5 hours."});
    EXPECT_EQ(run({"--hours", "1", "spikes"}).out, std::vector<std::string>{"Nothing unusual in the last 1 hours."});
    EXPECT_EQ(run({"spikes", "--hours", "x"}).out, run({"spikes"}).out); // back to 24 hours
    EXPECT_EQ(run({"spikes", "--hours", "nan", "--json"}).out, run({"spikes", "--json"}).out);
    EXPECT_EQ(run({"spikes"}).out.size(), 1u);
    EXPECT_NE(run({"spikes"}).out.at(0).find("Google Chrome"), std::string::npos);

    for (const auto& args : {std::vector<std::string>{"history"}, std::vector<std::string>{"spikes", "--json"}}) {
        const auto none = run(args, false);
        EXPECT_EQ(none.status, 1);
        EXPECT_EQ(none.err, std::vector<std::string>{"Vexel has no history yet. Open Vexel and leave it running."});
        EXPECT_TRUE(none.out.empty());
    }
}

TEST(CliUsage, NamesTheMachineItRunsOn)
{
    const std::string mac = VexelCLI::usage(Platform::macOS);
    EXPECT_EQ(mac.substr(0, mac.find('\n')), "vexel \u2014 what your Mac is doing, from the Vexel app (read-only).");
    const std::string linux = VexelCLI::usage(Platform::linux);
    EXPECT_EQ(
        linux.substr(0, linux.find('\n')), "vexel \u2014 what your computer is doing, from the Vexel app (read-only).");
    EXPECT_EQ(mac.substr(mac.find('\n')), linux.substr(linux.find('\n')));
    EXPECT_NE(mac.back(), '\n');
    EXPECT_NE(
        mac.find("\n  vexel top [-n N] [--sort KEY]     busiest apps (KEY: cpu, memory, energy, disk, network)\n"),
        std::string::npos);
}
