#include "cli/ReportText.h"
#include "cli/TextColumns.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::VexelCLI;
using nlohmann::json;

TEST(TextColumns, CutsAndPadsByCharacters)
{
    using TextColumns::Align;
    using TextColumns::cell;
    EXPECT_EQ(cell("abc", 5), "abc  ");
    EXPECT_EQ(cell("abc", 5, Align::right), "  abc");
    EXPECT_EQ(cell("abcdef", 3, Align::right), "abc");
    EXPECT_EQ(cell("", 2), "  ");
    EXPECT_EQ(cell("Café Müller", 4), "Café"); // cut between characters, not inside one
    EXPECT_EQ(TextColumns::characters("—é"), 2u);
}

TEST(TextRenderers, AppNamesAreCutToTheirColumn)
{
    const json report = {{"process_count", 3}, {"app_count", 1},
        {"apps",
            {{{"name", std::string(31, 'x') + "y"}, {"processes", 3}, {"cpu_percent_of_one_core", 12.34},
                {"memory_bytes", 1073741824}, {"energy_watts_estimated", 0.25}, {"disk_bytes_per_s", 2500000},
                {"network_bytes_per_s", 500}}}}};
    const std::string text = appsText(report);
    const std::string row = text.substr(text.find('\n') + 1, text.rfind('\n') - text.find('\n') - 1);
    EXPECT_EQ(row, std::string(30, 'x') + "      3    12.3%    1.00 GB    250 mW    2.5 MB/s     500 B/s");
    EXPECT_EQ(text.substr(text.rfind('\n') + 1), "3 processes in 1 apps. CPU is % of one core.");
    EXPECT_EQ(text.substr(0, text.find('\n')),
        "APP                             PROCS      CPU     MEMORY    ENERGY        DISK         NET");
}

TEST(TextRenderers, StatusSkipsWhatTheReportLeavesOut)
{
    json report = {
        {"cpu",
            {{"percent", 42.4}, {"user_percent", 30.1}, {"system_percent", 12.3}, {"load_average", {2.5, 1.25, 1.0}}}},
        {"memory",
            {{"used_bytes", 8589934592}, {"total_bytes", 17179869184}, {"pressure", "normal"}, {"swap_bytes", 0}}},
        {"thermal", {{"state", "cool"}}}, {"processes", {{"count", 412}, {"apps", 37}}}};
    EXPECT_EQ(statusText(report),
        "CPU       42%  (user 30%, system 12%)  load 2.50 1.25 1.00\n"
        "Memory    8.00 GB of 16.0 GB  pressure normal  swap 0.0 MB\n"
        "Thermal   cool\n"
        "Processes 412 in 37 apps");
    // Every line present is the golden status.txt; here, the one a charging battery changes.
    report["battery"] = {{"percent", 78}, {"charging", true}, {"on_ac", true}, {"power_watts", 11.4}};
    EXPECT_NE(statusText(report).find("Battery   78% charging  11 W"), std::string::npos);
    EXPECT_EQ(statusText(json::object()), "");
    EXPECT_EQ(statusText(json::array()), "");
}

TEST(TextRenderers, EmptyAndStateSentences)
{
    EXPECT_EQ(spikesText({{"hours", 2.0}, {"spikes", json::array()}}), "Nothing unusual in the last 2 hours.");
    EXPECT_EQ(portsText({{"listening", json::array()}}), "Nothing of yours is listening on a TCP port.");
    EXPECT_EQ(serversText({{"projects", json::array()}}, "/home/dev"), "No dev servers running.");
    EXPECT_EQ(dockerText({{"state", "running"}, {"containers", json::array()}}), "No containers.");
}

TEST(TextRenderers, ALongRuntimeLabelKeepsItsGapBeforeThePid)
{
    const json server = {{"runtime", "next-server"}, {"pid", 6325}, {"ports", {3000}}};
    const json other = {{"runtime", "node"}, {"pid", 12}, {"ports", {5173, 5174}}};
    const json report = {{"projects", {{{"name", "site"}, {"path", "/home/dev/site"}, {"servers", {server, other}}}}}};
    EXPECT_EQ(serversText(report, "/home/dev"),
        "site  ~/site\n"
        "  next-server  pid 6325    port 3000\n"
        "  node         pid 12      ports 5173, 5174");
}

TEST(TextRenderers, SpikeTimesInTheLocalZone)
{
    const json report = {{"hours", 24.0},
        {"spikes",
            {{{"start", "2026-11-18T09:05:00Z"}, {"summary", "CPU ran hot"}},
                {{"start", "not a time"}, {"summary", "odd"}}}}};
    EXPECT_EQ(spikesText(report, TimeZone::fixed(0)), "Wed 09:05  CPU ran hot\nnot a time  odd");
    EXPECT_EQ(spikesText(report, TimeZone::fixed(-10 * 3600)), "Tue 23:05  CPU ran hot\nnot a time  odd");
}
