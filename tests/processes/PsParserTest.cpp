#include "processes/PsParser.h"
#include "io/Files.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

const TimeZone utc = TimeZone::fixed(0);

std::string fixture(const std::string& path)
{
    return Files::read(std::string(VEXEL_FIXTURES) + "/" + path).value_or("");
}

} // namespace

TEST(PsParser, TimeForms)
{
    EXPECT_EQ(PsParser::parseTime("0:00.00"), 0.0);
    EXPECT_EQ(PsParser::parseTime("1:02.50"), 62.5);
    EXPECT_EQ(PsParser::parseTime("2-03:04:05"), 183845.0);
    EXPECT_EQ(PsParser::parseTime("12-00:00:00"), 1036800.0);
    EXPECT_EQ(PsParser::parseTime("00:00:05"), 5.0); // procps prints hours always
    EXPECT_EQ(PsParser::parseTime("7"), 7.0);
    for (const char* bad : {"1:2:3:4", "x:01", "", ":", "1-", "a-01:00", "1:-2", "1: 2"})
        EXPECT_FALSE(PsParser::parseTime(bad)) << bad;
}

TEST(PsParser, MacLinesWithPathsBlanksAndZombies)
{
    const auto records = PsParser::parse(fixture("ps/macos-ps.txt"), utc);
    ASSERT_EQ(records.size(), 8u);
    EXPECT_EQ(records[0].name, "launchd");
    EXPECT_EQ(records[0].path, "/sbin/launchd");
    EXPECT_EQ(records[0].cpuTime, 421.42);
    EXPECT_EQ(records[0].memory, 14224u * 1024);
    EXPECT_FALSE(records[0].memoryIsFootprint);
    EXPECT_EQ(records[0].start, 1794816723.0); // Mon Nov 16 08:12:03 2026 UTC
    EXPECT_EQ(records[3].name, "Google Chrome Helper (GPU)");
    EXPECT_EQ(records[3].cpuTime, 62.5);
    EXPECT_EQ(records[4].cpuTime, 183845.0);
    EXPECT_EQ(records[5].name, "mdworker_shared");
    EXPECT_FALSE(records[5].path);
    EXPECT_EQ(records[5].uid, 89u);
    EXPECT_TRUE(records[6].zombie);
    EXPECT_EQ(records[6].name, "defunct");
    EXPECT_EQ(records[7].name, "(node)");
}

TEST(PsParser, LinuxProcpsOutputOfThisMachine)
{
    const auto text = fixture("ps/procps-debian12.txt");
    const auto records = PsParser::parse(text, utc);
    size_t lines = 0;
    for (const char c : text)
        lines += c == '\n' ? 1 : 0;
    EXPECT_EQ(records.size(), lines); // every line of real output parses
    const auto weird
        = std::find_if(records.begin(), records.end(), [](const auto& r) { return r.name == "we ird) (x"; });
    ASSERT_NE(weird, records.end());
    EXPECT_EQ(weird->ppid, 1);
    EXPECT_GT(*weird->memory, 50'000'000u);
    const auto zombies = std::count_if(records.begin(), records.end(), [](const auto& r) { return r.zombie; });
    EXPECT_EQ(zombies, 1);
    EXPECT_EQ(records[1].name, "kthreadd");
}

TEST(PsParser, MalformedLines)
{
    const std::string good = "  42 1 501 S 0:01.00 100 Mon Nov 16 08:12:03 2026 /bin/zsh -l";
    ASSERT_TRUE(PsParser::parseLine(good, utc));
    EXPECT_EQ(PsParser::parseLine(good, utc)->name, "zsh -l");
    EXPECT_EQ(
        PsParser::parseLine("  42 1  501 S 0:01.00 100 Mon Nov 16 08:12:03 2026   my   tool  ", utc)->name, "my tool");
    for (const char* bad : {
             "42 1 501 S 0:01.00 100 Mon Nov 16 08:12:03", // 10 fields
             "x 1 501 S 0:01.00 100 Mon Nov 16 08:12:03 2026 a", // pid
             "42 1 -5 S 0:01.00 100 Mon Nov 16 08:12:03 2026 a", // uid
             "42 1 501 S 0:xx 100 Mon Nov 16 08:12:03 2026 a", // time
             "42 1 501 S 0:01 18014398509481984 Mon Nov 16 08:12:03 2026 a", // rss × 1024 overflows
             "42 1 501 S 0:01 100 Mon Nov 31 08:12:03 2026 a", // no such day
             "42 1 501 S 0:01 100 Lun Nov 16 08:12:03 2026 a", // not English
             "42 1 501 S 0:01 100 Mon Nov 16 8:12:03 2026 a", // clock
             "99999999999 1 501 S 0:01 100 Mon Nov 16 08:12:03 2026 a", // beyond 32 bits
         })
        EXPECT_FALSE(PsParser::parseLine(bad, utc)) << bad;
}

TEST(PsParser, StartTimesFollowTheZone)
{
    const std::string line = "1 0 0 S 0:00 1 Thu Jan 1 01:00:00 1970 init";
    EXPECT_EQ(PsParser::parseLine(line, TimeZone::fixed(3600))->start, 0.0);
    EXPECT_EQ(PsParser::parseLine(line, utc)->start, 3600.0);
}
