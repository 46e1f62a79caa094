#include "devservers/DockerParser.h"
#include "devservers/LiveDockerSource.h"
#include "io/Files.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>

using namespace vexel;
namespace fs = std::filesystem;

namespace {

const std::string folder = std::string(VEXEL_FIXTURES) + "/docker/";

std::string fixture(const std::string& name)
{
    return Files::read(folder + name).value_or("");
}

// Runs the fake docker in a mode, logging what it was asked.
class FakeDocker {
public:
    explicit FakeDocker(const char* mode)
        : m_log(fs::temp_directory_path() / ("vexel-docker-log-" + std::to_string(::getpid())))
    {
        fs::remove(m_log);
        ::setenv("FAKE_DOCKER_MODE", mode, 1);
        ::setenv("FAKE_DOCKER_LOG", m_log.c_str(), 1);
    }
    ~FakeDocker()
    {
        ::unsetenv("FAKE_DOCKER_MODE");
        ::unsetenv("FAKE_DOCKER_LOG");
        fs::remove(m_log);
    }
    [[nodiscard]] std::string commands() const { return Files::read(m_log.string()).value_or(""); }
    [[nodiscard]] static LiveDockerSource source() { return LiveDockerSource("/home/alice", folder + "fake-docker"); }

private:
    fs::path m_log;
};

} // namespace

TEST(DockerParser, EngineLinesWithComposeProjectsAndMalformedLines)
{
    const auto containers = DockerParser::parsePS(fixture("docker-engine-ps.txt"));
    ASSERT_EQ(containers.size(), 3u); // a blank line, a non-JSON line and one without an id are skipped
    EXPECT_EQ(containers[0].id, "3f2a9c1d8e7b");
    EXPECT_EQ(containers[0].name, "shop-db-1");
    EXPECT_EQ(containers[0].project, "shop");
    EXPECT_EQ(containers[0].ports, "0.0.0.0:5432->5432/tcp, :::5432->5432/tcp");
    EXPECT_FALSE(containers[2].project);
    EXPECT_EQ(containers[2].state, "exited");
}

TEST(DockerParser, PodmansArrayWithListsAndMaps)
{
    const auto containers = DockerParser::parsePS(fixture("podman-4.3-ps.json"));
    ASSERT_EQ(containers.size(), 2u);
    EXPECT_EQ(containers[0].name, "shop-web");
    EXPECT_EQ(containers[0].project, "shop");
    EXPECT_EQ(containers[0].state, "created");
    EXPECT_EQ(containers[0].id.size(), 64u);
    EXPECT_EQ(containers[1].name, "old-job");
    EXPECT_FALSE(containers[1].project); // "Labels": null
    EXPECT_EQ(containers[1].ports, ""); // "Ports": null
}

TEST(DockerParser, SizesInBinaryAndDecimalUnits)
{
    EXPECT_EQ(DockerParser::size("512MiB"), 536870912u);
    EXPECT_EQ(DockerParser::size("1.5GiB"), 1610612736u);
    EXPECT_EQ(DockerParser::size("7.875MiB"), 8257536u);
    EXPECT_EQ(DockerParser::size("1.2MB"), 1200000u);
    EXPECT_EQ(DockerParser::size("0B"), 0u);
    EXPECT_EQ(DockerParser::size(" 3 GB "), 3000000000u);
    for (const char* bad : {"", "MiB", "12", "x MiB", "-1MiB", "1e30GiB", "12 parsecs"})
        EXPECT_FALSE(DockerParser::size(bad)) << bad;
}

TEST(DockerParser, StatsMergeOntoRunningContainersFirst)
{
    const auto stats = DockerParser::parseStats(fixture("docker-engine-stats.txt"));
    EXPECT_EQ(stats.at("shop-web-1").cpu, 12.4);
    EXPECT_EQ(stats.at("3f2a9c1d8e7b").memory, DockerParser::size("61.2MiB"));
    EXPECT_EQ(stats.at("3f2a9c1d8e7b").limit, DockerParser::size("7.653GiB"));
    std::vector<Container> containers = DockerParser::parsePS(fixture("docker-engine-ps.txt"));
    std::rotate(containers.begin(), containers.begin() + 2, containers.end()); // the exited one first
    const auto merged = DockerParser::merge(containers, stats);
    EXPECT_EQ(merged[0].name, "shop-db-1");
    EXPECT_EQ(merged[1].name, "shop-web-1");
    EXPECT_EQ(merged[2].name, "scratch");
    EXPECT_DOUBLE_EQ(*merged[0].cpu, 0.53);
    EXPECT_FALSE(merged[2].cpu);
}

TEST(LiveDockerSource, ARunningEngineWithStats)
{
    FakeDocker docker("running");
    const auto state = FakeDocker::source().read();
    ASSERT_EQ(state.kind, DockerState::Kind::containers);
    ASSERT_EQ(state.containers.size(), 3u);
    EXPECT_EQ(state.containers[1].memory, DockerParser::size("7.875MiB"));
    EXPECT_NE(docker.commands().find("stats --no-stream --format {{json .}}"), std::string::npos);
}

TEST(LiveDockerSource, PodmansDockerCommand)
{
    FakeDocker docker("podman");
    const auto state = FakeDocker::source().read();
    ASSERT_EQ(state.kind, DockerState::Kind::containers);
    EXPECT_EQ(state.containers.size(), 2u);
    // Nothing runs, so stats are never asked for and stay absent.
    EXPECT_EQ(docker.commands().find("stats"), std::string::npos);
    EXPECT_FALSE(state.containers[0].cpu);
}

TEST(LiveDockerSource, EngineDownNotInstalledAndHanging)
{
    {
        FakeDocker docker("engine-down");
        const auto state = FakeDocker::source().read();
        EXPECT_EQ(state.kind, DockerState::Kind::notRunning);
        EXPECT_EQ(state.message, "Docker is installed but its engine isn't running.");
        EXPECT_EQ(docker.commands().find("ps"), std::string::npos); // ps is not run after info failed
    }
    EXPECT_EQ(LiveDockerSource("/home/alice", std::nullopt).read(), DockerState::notInstalled());
    {
        // A user outside the docker group: the engine runs, but says no.
        FakeDocker docker("denied");
        const auto state = FakeDocker::source().read();
        EXPECT_EQ(state.kind, DockerState::Kind::notRunning);
        EXPECT_EQ(state.message, DockerState::notAllowed().message);
        EXPECT_NE(state.message.find("docker group"), std::string::npos);
    }
    {
        // A hanging engine is ended by the time-out (6 seconds): not running, and no child left behind.
        FakeDocker docker("hang");
        const auto state = FakeDocker::source().read();
        EXPECT_EQ(state.kind, DockerState::Kind::notRunning);
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    }
}
