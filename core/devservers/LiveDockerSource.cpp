#include "devservers/LiveDockerSource.h"

#include "devservers/DockerParser.h"
#include "processes/Shell.h"
#include "text/TextScan.h"

#include <algorithm>

namespace vexel {

namespace {

constexpr double infoTimeout = 6.0;
constexpr double psTimeout = 6.0;
constexpr double statsTimeout = 8.0;

} // namespace

std::vector<std::string> LiveDockerSource::engineFolders(const std::string& home)
{
    return {"/Applications/Docker.app/Contents/Resources/bin", home + "/.orbstack/bin", home + "/.docker/bin",
        home + "/.rd/bin"};
}

LiveDockerSource::LiveDockerSource(std::string home)
    : LiveDockerSource(home, Shell::find("docker", engineFolders(home)))
{
}

LiveDockerSource::LiveDockerSource(std::string home, std::optional<std::string> binary)
    : m_home(std::move(home))
    , m_binary(std::move(binary))
{
}

DockerState LiveDockerSource::read()
{
    if (!m_binary)
        return DockerState::notInstalled();
    auto info = Shell::run(*m_binary, {"info", "--format", "{{.ServerVersion}}"}, infoTimeout, {.keepErrors = true});
    // A user outside the docker group reaches a running engine's socket but is refused.
    if (info && TextScan::trim(*info).empty() && info.errors.find("permission denied") != std::string::npos)
        return DockerState::notAllowed();
    // Podman's docker command has no ServerVersion field and fails on it; it names its version differently.
    if (info && TextScan::trim(*info).empty())
        info = Shell::run(*m_binary, {"info", "--format", "{{.Version.Version}}"}, infoTimeout);
    if (!info || TextScan::trim(*info).empty())
        return DockerState::notRunning();
    const auto ps = Shell::run(*m_binary, {"ps", "-a", "--format", "{{json .}}"}, psTimeout);
    if (!ps)
        return DockerState::notRunning();
    auto containers = DockerParser::parsePS(*ps);
    const bool anyRunning
        = std::any_of(containers.begin(), containers.end(), [](const Container& c) { return c.state == "running"; });
    std::map<std::string, DockerParser::Stats> stats;
    if (anyRunning) {
        if (const auto output = Shell::run(*m_binary, {"stats", "--no-stream", "--format", "{{json .}}"}, statsTimeout))
            stats = DockerParser::parseStats(*output);
    }
    return DockerState::running(DockerParser::merge(std::move(containers), stats));
}

} // namespace vexel
