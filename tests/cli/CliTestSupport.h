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

    // Each run gets a fresh service, as each start of the program does.
    CliResult run(const std::vector<std::string>& args, bool withHistory = true)
    {
        if (withHistory && !std::filesystem::exists(folder.path() / "history.sqlite"))
            writeHistory(folder.path() / "history.sqlite", DemoService(folder.path()).now);
        DemoService demo(withHistory ? folder.path() : empty.path());
        CliResult result;
        result.status = VexelCLI::run(
            args, demo.service, "9.9", [&](const std::string& line) { result.out.push_back(line); },
            [&](const std::string& line) { result.err.push_back(line); });
        return result;
    }

    TempFolder folder{"vexel-cli"};
    TempFolder empty{"vexel-cli-empty"};
};

} // namespace vexel::testing
