#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vexel {

// What `vexel-recorder` was asked to do by its command line.
struct RecorderArguments {
    bool help = false;
    bool version = false;
    std::optional<std::string> dataDir; // --data-dir: instead of VEXEL_DATA_DIR or the standard folder
    std::optional<std::string> metrics; // --metrics HOST:PORT: serve /metrics there
    std::optional<std::string> metricsFile; // --metrics-file PATH: the same text, written each tick
    std::optional<std::string> metricsTokenFile; // --metrics-token-file PATH: the bearer token scrapers send
    std::optional<std::string> error; // what was wrong with the command line, for the user

    // Options stand anywhere; an option without its value, or a word the
    // recorder doesn't know, is an error (a service must not start on a
    // command line it misread).
    [[nodiscard]] static RecorderArguments parse(std::vector<std::string> args);
};

// `vexel-recorder --help`; no trailing newline.
[[nodiscard]] std::string recorderUsage();

} // namespace vexel
