#pragma once

#include "devservers/DockerState.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexel::DockerParser {

// One container's load from `docker stats`.
struct Stats {
    std::optional<double> cpu; // percent
    std::optional<uint64_t> memory;
    std::optional<uint64_t> limit;

    bool operator==(const Stats&) const = default;
};

// `docker ps -a --format "{{json .}}"`: one JSON object a line; lines that are
// not objects or lack an "ID" are skipped. Podman's docker-compatible output
// (names and labels as lists and maps) reads the same.
[[nodiscard]] std::vector<Container> parsePS(std::string_view text);

// `docker stats --no-stream --format "{{json .}}"`: each container's CPU
// percent and memory use and limit, by its id and by its name.
[[nodiscard]] std::map<std::string, Stats> parseStats(std::string_view text);

// A size such as "512MiB", "1.5GiB", "980kB" or "0B" in bytes; nothing when unreadable.
[[nodiscard]] std::optional<uint64_t> size(std::string_view text);

// The stats copied onto their containers (matched by id, its short form, or
// name), running containers first, the order otherwise kept.
[[nodiscard]] std::vector<Container> merge(
    std::vector<Container> containers, const std::map<std::string, Stats>& stats);

} // namespace vexel::DockerParser
