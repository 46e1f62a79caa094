#pragma once

#include "cli/VexelCLI.h"
#include "support/DemoService.h"
#include "support/HistoryFixture.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace vexel::testing {

// What one run of the command printed.
struct CliResult {
    int status = -1;
    std::vector<std::string> out;
    std::vector<std::string> err;
};

// The command on the demo world, with a recorded history, times shown in UTC.
class CliOnDemoWorld : public ::testing::Test {
protected:
    void SetUp() override
    {
        ::setenv("TZ", "UTC", 1);
        ::tzset();
    }

    // What the data folder holds.
    enum class History { recorded, none, corrupt };

    // Each run gets a fresh service, as each start of the program does.
    CliResult run(const std::vector<std::string>& args, History history = History::recorded)
    {
        if (history == History::recorded && !std::filesystem::exists(folder.path() / "history.sqlite"))
            writeHistory(folder.path() / "history.sqlite", DemoService(folder.path()).now);
        if (history == History::corrupt)
            writeCorruptHistory(corrupt.path() / "history.sqlite");
        DemoService demo(history == History::recorded ? folder.path()
                : history == History::none            ? empty.path()
                                                      : corrupt.path());
        CliResult result;
        result.status = VexelCLI::run(
            args, demo.service, "9.9", [&](const std::string& line) { result.out.push_back(line); },
            [&](const std::string& line) { result.err.push_back(line); });
        return result;
    }

    TempFolder folder{"vexel-cli"};
    TempFolder empty{"vexel-cli-empty"};
    TempFolder corrupt{"vexel-cli-corrupt"};
};

} // namespace vexel::testing
