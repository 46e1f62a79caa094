#pragma once

#include "devservers/DockerState.h"

#include <optional>
#include <string>

namespace vexel {

// Containers through the docker command of whichever engine is installed
// (Docker Desktop, OrbStack, Colima, Rancher Desktop, or Podman's docker
// command). Never starts, stops or removes anything.
class LiveDockerSource final : public DockerSource {
public:
    // Looks for docker in the engines' folders under `home`, then the usual folders.
    explicit LiveDockerSource(std::string home);
    // Uses the docker command at `binary` (tests hand in a fake), or none.
    LiveDockerSource(std::string home, std::optional<std::string> binary);

    [[nodiscard]] std::optional<std::string> binary() const { return m_binary; }
    [[nodiscard]] DockerState read() override;

    // The folders searched before the usual ones, in order.
    [[nodiscard]] static std::vector<std::string> engineFolders(const std::string& home);

private:
    std::string m_home;
    std::optional<std::string> m_binary;
};

} // namespace vexel
