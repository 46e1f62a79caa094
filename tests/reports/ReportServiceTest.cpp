#include "history/HistoryStore.h"
#include "reports/ReportError.h"
#include "reports/ReportValues.h"
#include "support/DemoService.h"
#include "support/FailingSteps.h"
#include "support/HistoryFixture.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::testing;
using nlohmann::json;

namespace {

class ReportService : public ::testing::Test {
protected:
    TempFolder folder{"vexel-reports"};
    DemoService demo{folder.path()};
    VexelService& service = demo.service;
};

} // namespace

TEST_F(ReportService, AbsentReadingsLeaveTheirKeysOut)
{
    DemoService plain(folder.path(), DemoService::World::still);
    SystemSnapshot snapshot = plain.world->systemSource->read(0);
    snapshot.gpu = GPUStats{0.4, ""};
    snapshot.battery->designCapacity.reset();
    snapshot.thermal = ThermalLevel::serious;
    plain.world->systemSource->set(snapshot);
    const json status = plain.service.status();
    EXPECT_FALSE(status.contains("gpu"));
    EXPECT_FALSE(status["battery"].contains("health_percent"));
    EXPECT_EQ(status["thermal"]["detail"], "Hot. macOS is slowing the processor to cool down.");

    DemoService mains(folder.path(), DemoService::World::still);
    snapshot.battery.reset();
    mains.world->systemSource->set(snapshot);
    EXPECT_FALSE(mains.service.status().contains("battery"));
}

TEST_F(ReportService, PortsAreOrderedByPortThenPid)
{
    DemoService plain(folder.path(), DemoService::World::still);
    auto& sockets = *plain.world->portSource->sockets;
    const int32_t chrome = plain.world->find("Google Chrome")->rec.pid;
    sockets.push_back({9999, "ghost", ListenSocket::Family::v4, "0.0.0.0", 3000});
    sockets.push_back({chrome, "Google", ListenSocket::Family::v4, "127.0.0.1", 3000});
    const json ports = plain.service.portsReport();
    const json& listening = ports["listening"];
    ASSERT_GE(listening.size(), 3u);
    for (size_t i = 1; i < listening.size(); ++i) {
        const auto a = listening[i - 1], b = listening[i];
        EXPECT_TRUE(a["port"] < b["port"] || (a["port"] == b["port"] && a["pid"] <= b["pid"])) << a << b;
    }
    std::vector<json> at3000;
    for (const auto& entry : listening)
        if (entry["port"] == 3000)
            at3000.push_back(entry);
    ASSERT_EQ(at3000.size(), 3u);
    EXPECT_EQ(at3000[2]["process"], "ghost"); // not in the frame: the socket's own name
    EXPECT_EQ(at3000[2]["app"], "ghost");
    EXPECT_EQ(at3000[2]["reachable_from_network"], true);
    const auto chromeEntry
        = std::find_if(at3000.begin(), at3000.end(), [&](const json& e) { return e["pid"] == chrome; });
    ASSERT_NE(chromeEntry, at3000.end());
    EXPECT_EQ((*chromeEntry)["app"], "Google Chrome");
    EXPECT_EQ((*chromeEntry)["process"], "Google Chrome");
    EXPECT_EQ((*chromeEntry)["reachable_from_network"], false);
    EXPECT_EQ(ports["note"], "Your own processes only; macOS doesn't show other users' sockets without admin rights.");
}

// A running engine is in the golden files; these are the states without one.
TEST_F(ReportService, DockerStatesWithoutAnEngine)
{
    demo.world->dockerSource->state = DockerState::notRunning();
    EXPECT_EQ(service.dockerReport(),
        (json{{"state", "not_running"}, {"message", "Docker is installed but its engine isn't running."}}));
    demo.world->dockerSource->state = DockerState::notInstalled();
    EXPECT_EQ(service.dockerReport(),
        (json{{"state", "not_installed"}, {"message", "Docker isn't installed (no docker command found)."}}));
}

// Today's figures from this history are the golden history-today.txt and
// spikes.txt; here, the ranges that read it through coarser tiers.
TEST_F(ReportService, LongerRangesReadTheirCoarserTiers)
{
    writeHistory(folder.path() / "history.sqlite", demo.now);
    EXPECT_EQ(service.history(HistoryRange::year)["hours_sampled"], 6.0);
    EXPECT_TRUE(service.spikes(1)["spikes"].empty()); // the last hour was calm
    EXPECT_EQ(service.spikes(100)["spikes"].size(), 1u); // read from the ten-minute tier
    // Beyond 35 days only hours are kept, and an hour's mean (37 %) hides a 20-minute spike.
    EXPECT_TRUE(service.spikes(2000)["spikes"].empty());
}

TEST_F(ReportService, ReadingHistoryLeavesTheDataFolderAsItWas)
{
    const auto file = folder.path() / "history.sqlite";
    writeHistory(file, demo.now);
    const auto before = folderState(folder.path());
    ASSERT_EQ(before.size(), 3u); // the file, and the log and index the writer keeps
    (void)service.history(HistoryRange::week);
    (void)service.spikes(24);
    (void)service.status();
    EXPECT_EQ(folderState(folder.path()), before);

    // While the app writes, its log holds rows the database file does not yet
    // have; the reader sees them without touching the log or its index.
    HistoryStore writer(file, HistoryAccess::readWrite);
    SysPoint late;
    late.t = std::floor(demo.now / 60) * 60 + 10; // in the minute not yet rolled up
    late.dur = 30;
    late.diskW = 7;
    writer.insert(HistoryTier::raw, late, {});
    const auto whileWriting = folderState(folder.path());
    ASSERT_TRUE(whileWriting.contains((folder.path() / "history.sqlite-wal").string()));
    DemoService reader(folder.path());
    EXPECT_EQ(reader.service.status()["today"]["disk_written_bytes"], historyMinutes * 1'000'000ULL + 7);
    EXPECT_EQ(folderState(folder.path()), whileWriting);
}

// A read that fails halfway is the store's error, passed through; only a
// missing file is "no history yet".
TEST_F(ReportService, HistoryErrorsArePassedThrough)
{
    EXPECT_THROW((void)service.history(HistoryRange::today), ReportError);
    writeHistory(folder.path() / "history.sqlite", demo.now);
    {
        const FailingSteps failing("SELECT t,", 30);
        try {
            (void)service.history(HistoryRange::today);
            FAIL() << "a failed read passed for the end of the history";
        } catch (const HistoryError& error) {
            EXPECT_STREQ(error.what(), "History error: disk I/O error");
        }
        EXPECT_THROW((void)service.spikes(24), HistoryError);
        EXPECT_FALSE(service.status().contains("today"));
    }
    EXPECT_TRUE(service.status().contains("today"));
}
