#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vexel {

// One container as the engine lists it, with its load when it runs.
struct Container {
    std::string id;
    std::string name;
    std::string image;
    std::string state; // "running", "exited"…
    std::string status; // the engine's own words: "Up 3 hours"
    std::string ports; // the engine's port text
    std::optional<std::string> project; // the compose project
    std::optional<double> cpu; // percent
    std::optional<uint64_t> memory; // bytes in use
    std::optional<uint64_t> memoryLimit;

    bool operator==(const Container&) const = default;
};

// What the docker command said.
struct DockerState {
    enum class Kind { notInstalled, notRunning, containers };

    Kind kind = Kind::notInstalled;
    std::string message; // for notRunning
    std::vector<Container> containers;

    [[nodiscard]] static DockerState notInstalled() { return {}; }
    [[nodiscard]] static DockerState notRunning()
    {
        return {Kind::notRunning, "Docker is installed but its engine isn't running.", {}};
    }
    // The engine runs but refuses this user its socket (not in the docker group).
    [[nodiscard]] static DockerState notAllowed()
    {
        return {Kind::notRunning,
            "Docker's engine is running but won't let you in: add yourself to the docker group, then sign out and in "
            "again.",
            {}};
    }
    [[nodiscard]] static DockerState running(std::vector<Container> list)
    {
        return {Kind::containers, {}, std::move(list)};
    }

    bool operator==(const DockerState&) const = default;
};

// Where the container list comes from.
class DockerSource {
public:
    virtual ~DockerSource() = default;
    [[nodiscard]] virtual DockerState read() = 0;
};

} // namespace vexel
