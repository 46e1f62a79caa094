#include "devservers/LsofParser.h"
#include "devservers/linux/LinuxPortSources.h"
#include "devservers/linux/SsListenParser.h"
#include "io/Files.h"
#include "processes/Shell.h"
#include "support/Listener.h"
#include "support/ServerProcess.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sys/socket.h>
#include <unistd.h>

using namespace vexel;
using Family = ListenSocket::Family;
using vexel::testing::Listener;

namespace {

std::string fixture(const std::string& path)
{
    return Files::read(std::string(VEXEL_FIXTURES) + "/lsof/" + path).value_or("");
}

std::vector<ListenSocket> sorted(std::vector<ListenSocket> sockets)
{
    std::sort(sockets.begin(), sockets.end());
    return sockets;
}

} // namespace

TEST(LsofParser, FieldLinesMakeSockets)
{
    EXPECT_EQ(LsofParser::parse("p123\ncnode\nf21\ntIPv6\nn[::1]:3000\n"),
        (std::vector<ListenSocket>{{123, "node", Family::v6, "::1", 3000}}));
    EXPECT_EQ(LsofParser::parse("p9\ncnginx\nf3\ntIPv4\nn*:8080\nf4\ntIPv4\nn127.0.0.1:http-alt\n"),
        (std::vector<ListenSocket>{{9, "nginx", Family::v4, "*", 8080}, {9, "nginx", Family::v4, "127.0.0.1", 8080}}));
    EXPECT_TRUE(LsofParser::parse("").empty());
    // A name before any process, ports that are neither numbers nor known services, a bad pid.
    EXPECT_TRUE(LsofParser::parse("n*:80\np1\ncx\nn*:tproxy\nn*:99999\nnnocolon\npzz\nn*:22\n").empty());
    EXPECT_EQ(LsofParser::endpoint("[fe80::1%en0]:22"), (std::pair<std::string, uint16_t>{"fe80::1%en0", 22}));
    EXPECT_EQ(LsofParser::endpoint("*:postgresql")->second, 5432);
    EXPECT_FALSE(LsofParser::endpoint("*:"));
}

TEST(LsofParser, FieldAndTableFormsOfThisMachineAgree)
{
    const auto fields = sorted(LsofParser::parse(fixture("field-debian12.txt")));
    const auto table = sorted(LsofParser::parse(fixture("table-debian12.txt")));
    ASSERT_EQ(fields.size(), 6u);
    EXPECT_EQ(fields, table);
    EXPECT_NE(
        std::find(fields.begin(), fields.end(), ListenSocket{17895, "python3", Family::v6, "*", 8770}), fields.end());
    EXPECT_NE(
        std::find(fields.begin(), fields.end(), ListenSocket{17895, "python3", Family::v6, "::1", 8766}), fields.end());
    EXPECT_NE(std::find(fields.begin(), fields.end(), ListenSocket{14452, "postgres", Family::v4, "127.0.0.1", 5432}),
        fields.end());
    // Without -P lsof names the ports: known services still give their numbers; unknown ones are dropped.
    const auto named = sorted(LsofParser::parse(fixture("field-services-debian12.txt")));
    EXPECT_EQ(named.size(), 5u);
    EXPECT_NE(
        std::find(named.begin(), named.end(), ListenSocket{17895, "python3", Family::v4, "*", 8080}), named.end());
}

TEST(SsListenParser, CapturedListenersOfThisMachine)
{
    const auto sockets = sorted(SsListenParser::parse(fixture("ss-ltnpH-debian12.txt")));
    // The listener on 2024 shows no owner and is left out.
    ASSERT_EQ(sockets.size(), 6u);
    // ss and lsof see the same sockets, but for the family of a dual-stack "*".
    auto fromLsof = sorted(LsofParser::parse(fixture("field-debian12.txt")));
    EXPECT_EQ(sockets, fromLsof);
    EXPECT_EQ(SsListenParser::parse("LISTEN 0 5 127.0.0.53%lo:53 0.0.0.0:* users:((\"systemd-resolve\",pid=5,fd=1))\n"),
        (std::vector<ListenSocket>{{5, "systemd-resolve", Family::v4, "127.0.0.53", 53}}));
    EXPECT_EQ(
        SsListenParser::parse("LISTEN 0 5 [::]:22 [::]:* users:((\"sshd\",pid=7,fd=3),(\"sshd\",pid=9,fd=3))\n").size(),
        2u);
    EXPECT_TRUE(
        SsListenParser::parse("LISTEN 0 5 bad 0.0.0.0:*\nESTAB 0 0 1.2.3.4:5 6.7.8.9:10 users:((\"x\",pid=1,fd=1))\n")
            .empty());
}

class LivePortSources : public ::testing::TestWithParam<const char*> {
protected:
    std::unique_ptr<PortSource> source() const
    {
        const std::string tool = GetParam();
        const auto path = Shell::find(tool);
        EXPECT_TRUE(path) << tool << " is installed by the set-up";
        if (tool == "lsof")
            return std::make_unique<LsofPortSource>(path);
        return std::make_unique<SsPortSource>(path);
    }
};

TEST_P(LivePortSources, SeeThisProcesssListenersWithPidAddressAndFamily)
{
    const Listener loopback(AF_INET, "127.0.0.1");
    const Listener anywhere(AF_INET, "0.0.0.0");
    const Listener v6(AF_INET6, "::1");
    const auto sockets = source()->listeners();
    ASSERT_TRUE(sockets);
    const auto mine = [&](uint16_t port) -> std::optional<ListenSocket> {
        for (const auto& socket : *sockets) {
            if (socket.port == port && socket.pid == ::getpid())
                return socket;
        }
        return std::nullopt;
    };
    std::string seen;
    for (const auto& socket : *sockets)
        seen += std::to_string(socket.pid) + " " + socket.command + " " + socket.address + ":"
            + std::to_string(socket.port) + "\n";
    ASSERT_TRUE(mine(loopback.port())) << "pid " << ::getpid() << " port " << loopback.port() << " among\n" << seen;
    EXPECT_EQ(mine(loopback.port())->address, "127.0.0.1");
    EXPECT_EQ(mine(loopback.port())->family, Family::v4);
    ASSERT_TRUE(mine(anywhere.port()));
    EXPECT_EQ(mine(anywhere.port())->address, "*");
    ASSERT_TRUE(mine(v6.port()));
    EXPECT_EQ(mine(v6.port())->address, "::1");
    EXPECT_EQ(mine(v6.port())->family, Family::v6);
}

INSTANTIATE_TEST_SUITE_P(LsofAndSs, LivePortSources, ::testing::Values("lsof", "ss"));

// lsof 4.95 drops a process whose name holds an unclosed "("; the default
// source must not.
TEST(LivePortSources, TheDefaultSeesAListenerWithAParenthesisInItsName)
{
    const auto python = Shell::find("python3");
    ASSERT_TRUE(python);
    const vexel::testing::ServerProcess next(*python, std::filesystem::temp_directory_path(), "next-server (v14.2.3)");
    ASSERT_NE(next.port(), 0);
    const auto sockets = liveLinuxPortSource()->listeners();
    ASSERT_TRUE(sockets);
    const auto found = std::find_if(sockets->begin(), sockets->end(),
        [&](const ListenSocket& socket) { return socket.pid == next.pid() && socket.port == next.port(); });
    ASSERT_NE(found, sockets->end());
    EXPECT_EQ(found->command, "next-server (v1");
}

TEST(LivePortSources, AMissingToolCannotRead)
{
    EXPECT_FALSE(LsofPortSource(std::nullopt).listeners());
    EXPECT_FALSE(SsPortSource(std::string("/nonexistent/ss")).listeners());
}
