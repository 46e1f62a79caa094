// The pages' pure parts: the search of the Apps page, the platform's words,
// and the times marked under history charts.

#include "model/AppSearch.h"
#include "pages/TimeTicks.h"
#include "pages/Traces.h"
#include "texts/PageTexts.h"

#include "text/HomePath.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

AppGroup app(const std::string& name, std::vector<std::pair<int32_t, std::string>> processes)
{
    AppGroup group;
    group.id = "app:" + name;
    group.name = name;
    for (auto& [pid, process] : processes) {
        ProcRow row;
        row.pid = pid;
        row.name = process;
        group.processes.push_back(row);
    }
    return group;
}

std::vector<std::string> names(const std::vector<AppGroup>& apps)
{
    std::vector<std::string> result;
    for (const auto& group : apps)
        result.push_back(group.name);
    return result;
}

} // namespace

TEST(AppSearch, NamesProcessesAndPids)
{
    const std::vector<AppGroup> apps{app("Google Chrome", {{100, "Google Chrome"}, {101, "Google Chrome Helper"}}),
        app("Visual Studio Code", {{200, "code"}, {4100, "node"}}), app("node", {{41, "node"}})};
    using Names = std::vector<std::string>;
    EXPECT_EQ(names(searchApps(apps, "")), (Names{"Google Chrome", "Visual Studio Code", "node"}));
    EXPECT_EQ(names(searchApps(apps, "  chrome ")), Names{"Google Chrome"}); // ignoring case and blanks
    EXPECT_EQ(names(searchApps(apps, "helper")), Names{"Google Chrome"}); // a process's name finds its app
    EXPECT_EQ(names(searchApps(apps, "node")), (Names{"Visual Studio Code", "node"}));
    // A PID finds its owner only: 41 is not a part of 4100.
    EXPECT_EQ(names(searchApps(apps, "41")), Names{"node"});
    EXPECT_EQ(names(searchApps(apps, "4100")), Names{"Visual Studio Code"});
    EXPECT_TRUE(searchApps(apps, "99999").empty());
    EXPECT_TRUE(searchApps(apps, "zzz").empty());
    EXPECT_TRUE(searchApps(apps, "-1").empty());
}

// Where Linux differs in fact, not only in words: the texts must not claim
// what is false there; commands name the process they were shown for.
TEST(PageTexts, LinuxSentencesAreTrueOnLinux)
{
    EXPECT_FALSE(PageTexts::thermalNote(Platform::linux).contains(QStringLiteral("aren't available")));
    EXPECT_TRUE(PageTexts::thermalNote(Platform::macOS).contains(QStringLiteral("aren't available")));
    EXPECT_TRUE(PageTexts::neuralEngineNote(Platform::linux).isEmpty());
    for (const auto& sentence : {PageTexts::mainsPower(Platform::linux), PageTexts::dropdownNoBattery(Platform::linux),
             PageTexts::cpuScaleSentence(Platform::linux, true), PageTexts::noGpuUtilisation(Platform::linux)})
        EXPECT_FALSE(sentence.contains(QStringLiteral("Mac"))) << sentence.toStdString();
    EXPECT_EQ(PageTexts::sampleCommand(Platform::macOS, 386), "sample 386 5");
    EXPECT_NE(PageTexts::sampleCommand(Platform::linux, 386).find("gdb -p 386 "), std::string::npos);
    EXPECT_NE(PageTexts::fullerReportCommand(Platform::linux, 386).find("-p 386 "), std::string::npos);
}

// The live traces mark each minute back from the newest reading where the
// reading of that moment is drawn, even when readings were not evenly spaced.
TEST(Traces, MinutesMarkedWhereTheirReadingsAreDrawn)
{
    RecentRing ring;
    EXPECT_TRUE(minuteMarks(ring).empty());
    // Two minutes of readings every 2 s, then a pause of a minute, then 30 s more.
    RingSample sample;
    sample.t = 1000;
    for (int i = 0; i < 60; ++i, sample.t += 2)
        ring.append(sample);
    sample.t += 60;
    for (int i = 0; i < 15; ++i, sample.t += 2)
        ring.append(sample);
    const auto marks = minuteMarks(ring);
    ASSERT_EQ(marks.size(), 4U); // now, and 1, 2 and 3 minutes back
    EXPECT_EQ(marks.front(), (std::pair<double, QString>{1.0, "now"}));
    const double last = static_cast<double>(ring.samples().size() - 1);
    // A minute back falls in the pause: it is marked at the first reading after it.
    EXPECT_DOUBLE_EQ(marks[1].first, 60 / last);
    EXPECT_TRUE(marks[1].second.isEmpty());
    EXPECT_EQ(marks.back().second, QStringLiteral("3 min ago"));
    EXPECT_LT(marks.back().first, marks[2].first);
    // Rates reach the round step over their peak, in the unit they are shown in.
    EXPECT_EQ(rateTop(107e3, Fmt::RateUnit::bytes), 200e3);
    EXPECT_EQ(rateTop(107e3, Fmt::RateUnit::bits), 1e6 / 8); // 856 kb/s → 1 Mb/s
    EXPECT_EQ(rateTop(3, Fmt::RateUnit::bytes), 1000); // a quiet link
}

TEST(TimeTicks, RoundLocalTimesForEachRange)
{
    // Sunday 1 November 2026, 00:00 UTC.
    const double midnight = 1'793'491'200;
    const auto utc = TimeZone::fixed(0);
    // A day until 11:06: every two hours, six marks at most.
    auto today = timeTicks(midnight, midnight + 11 * 3600 + 360, HistoryRange::today, utc);
    ASSERT_EQ(today.size(), 6U);
    EXPECT_EQ(today.front(), (std::pair<double, QString>{midnight, "00:00"}));
    EXPECT_EQ(today.back().second, QStringLiteral("10:00"));
    // A zone half an hour off UTC marks its own whole hours.
    const auto india = TimeZone::fixed(19800);
    const auto shifted = timeTicks(midnight, midnight + 4 * 3600, HistoryRange::today, india);
    ASSERT_FALSE(shifted.empty());
    EXPECT_EQ(shifted.front(), (std::pair<double, QString>{midnight + 1800, "06:00"}));
    // A week: each midnight, by weekday.
    const auto week = timeTicks(midnight - 7 * 86400 + 60, midnight + 60, HistoryRange::week, utc);
    ASSERT_EQ(week.size(), 7U);
    EXPECT_EQ(week.back(), (std::pair<double, QString>{midnight, "Sun"}));
    EXPECT_EQ(week.front().second, QStringLiteral("Mon"));
    // A year: the first of every other month, both ends included.
    const auto year = timeTicks(midnight - 365 * 86400, midnight, HistoryRange::year, utc);
    ASSERT_EQ(year.size(), 7U);
    EXPECT_EQ(year[1].second, QStringLiteral("1 Jan"));
    EXPECT_EQ(year.back(), (std::pair<double, QString>{midnight, "1 Nov"}));
    // Between the named marks, unnamed ticks: the odd hours of the day, the
    // noons of the week, the other months' firsts of the year; never on a named mark.
    EXPECT_EQ(minorTicks(midnight, midnight + 11 * 3600 + 360, HistoryRange::today, utc).size(), 6U);
    const auto noons = minorTicks(midnight - 7 * 86400 + 60, midnight + 60, HistoryRange::week, utc);
    ASSERT_EQ(noons.size(), 7U);
    EXPECT_EQ(noons.back(), midnight - 43200);
    EXPECT_EQ(minorTicks(midnight - 365 * 86400, midnight, HistoryRange::year, utc).size(), 6U);
    // Nonsense spans mark nothing.
    EXPECT_TRUE(minorTicks(0, 1e300, HistoryRange::month, utc).empty());
    EXPECT_TRUE(timeTicks(midnight, midnight - 1, HistoryRange::today, utc).empty());
    EXPECT_TRUE(timeTicks(0, 1e300, HistoryRange::year, utc).empty());
}
