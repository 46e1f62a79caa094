#include "io/Files.h"
#include "rates/NettopParser.h"
#include "rates/linux/LiveNetSource.h"
#include "rates/linux/SsParser.h"

#include <gtest/gtest.h>

#include <deque>

using namespace vexel;

namespace {

std::string fixture(const std::string& path)
{
    return Files::read(std::string(VEXEL_FIXTURES) + "/" + path).value_or("");
}

std::string ssLine(uint64_t inode, int pid, uint64_t in, uint64_t out, const char* local = "192.0.2.2:42670",
    const char* peer = "203.0.113.9:443")
{
    return "ESTAB 0 0 " + std::string(local) + " " + peer + " users:((\"curl\",pid=" + std::to_string(pid)
        + ",fd=5)) ino:" + std::to_string(inode) + " sk:1 cgroup:/ <-> ts sack bytes_sent:" + std::to_string(out + 7)
        + " bytes_acked:" + std::to_string(out) + " bytes_received:" + std::to_string(in) + "\n";
}

} // namespace

TEST(SsParser, CapturedSocketsOfThisMachine)
{
    const auto sockets = SsParser::parse(fixture("ss-tinpHeO-debian12.txt"));
    ASSERT_EQ(sockets.size(), 4u);
    const auto loopback = std::count_if(sockets.begin(), sockets.end(), [](auto& s) { return s.loopbackOnly; });
    EXPECT_EQ(loopback, 2);
    for (const auto& socket : sockets) {
        EXPECT_GT(socket.inode, 0u);
        EXPECT_GT(socket.pid, 0);
        EXPECT_GE(socket.bytesIn, 1'000'000u);
        EXPECT_GE(socket.bytesOut, 1'000'000u); // acked, never the retransmitted count
    }
}

TEST(SsParser, OwnersCountersAndAddresses)
{
    const auto shared
        = SsParser::parse("ESTAB 0 0 10.0.0.2:5 10.0.0.9:80 users:((\"a\\\"b\",pid=7,fd=3),(\"c\",pid=8,fd=4))"
                          " ino:55 bytes_received:10\n");
    ASSERT_EQ(shared.size(), 1u);
    EXPECT_EQ(shared[0].pid, 7); // a socket shared after fork goes to the first holder
    EXPECT_EQ(shared[0].bytesOut, 0u); // a missing counter reads 0
    EXPECT_EQ(shared[0].bytesIn, 10u);
    // Other users' sockets show no owner; a socket without an inode is skipped too.
    EXPECT_TRUE(SsParser::parse("ESTAB 0 0 10.0.0.2:5 10.0.0.9:80 ino:9 bytes_received:10\n").empty());
    EXPECT_TRUE(
        SsParser::parse("ESTAB 0 0 10.0.0.2:5 10.0.0.9:80 users:((\"a\",pid=7,fd=3)) bytes_received:1\n").empty());
    EXPECT_TRUE(SsParser::parse("ESTAB 0 0 users:((\"a\",pid=x,fd=3)) ino:4\n").empty());
    // Found by fuzzing: a name whose escape is the last character of the line.
    EXPECT_TRUE(SsParser::parse("ESTAB 0 0 a:1 b:2 ino:4 users:((\"ab\\").empty());
    EXPECT_TRUE(SsParser::isLoopback("[::1]:22"));
    EXPECT_TRUE(SsParser::isLoopback("[::ffff:127.0.0.1]:80"));
    EXPECT_TRUE(SsParser::isLoopback("127.0.0.53%lo:53"));
    EXPECT_FALSE(SsParser::isLoopback("192.0.2.2:9000"));
    EXPECT_FALSE(SsParser::isLoopback("[fe80::1%eth0]:22"));
}

TEST(LiveNetSource, SumsGrowthPerSocketIntoRunningTotalsPerProcess)
{
    std::deque<std::optional<std::string>> runs{
        ssLine(1, 100, 5000, 500) + ssLine(2, 200, 10, 10, "127.0.0.1:1", "127.0.0.1:2"),
        ssLine(1, 100, 8000, 900) + ssLine(3, 100, 40, 4) + ssLine(2, 200, 99999, 99999, "127.0.0.1:1", "127.0.0.1:2"),
        std::nullopt, // ss failed this time
        ssLine(3, 100, 50, 4) + ssLine(4, 300, 7, 0), // socket 1 closed; pid 300 is new
        ssLine(4, 300, 9, 0), // pid 100 holds no socket any more
    };
    LiveNetSource source([&]() {
        auto next = runs.front();
        runs.pop_front();
        return next;
    });
    // The first run is the baseline: bytes that flowed before it do not count.
    auto counters = source.counters();
    ASSERT_TRUE(counters);
    EXPECT_EQ(counters->at(100), (NetCounter{0, 0}));
    EXPECT_EQ(counters->at(200), (NetCounter{0, 0})); // loopback traffic is never counted
    counters = source.counters();
    EXPECT_EQ(counters->at(100), (NetCounter{3000 + 40, 400 + 4})); // growth of 1 plus all of the new socket 3
    EXPECT_EQ(counters->at(200), (NetCounter{0, 0}));
    EXPECT_FALSE(source.counters());
    counters = source.counters();
    EXPECT_EQ(counters->at(100), (NetCounter{3050, 404})); // the closed socket's bytes stay counted
    EXPECT_EQ(counters->at(300), (NetCounter{7, 0}));
    counters = source.counters();
    EXPECT_FALSE(counters->contains(100)); // a reused pid 100 would not inherit the total
    EXPECT_EQ(counters->at(300), (NetCounter{9, 0}));
}
