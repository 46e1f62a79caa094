#include "cli/CliTestSupport.h"
#include "support/Golden.h"

using namespace vexel;
using namespace vexel::testing;

// Every command's table and JSON on the demo world, kept in tests/golden/cli.
TEST_F(CliOnDemoWorld, TablesAndJsonMatchTheGoldenFiles)
{
    const std::vector<std::pair<std::string, std::vector<std::string>>> cases{
        {"status.txt", {}},
        {"status.json", {"--json"}},
        {"top.txt", {"top"}},
        {"top-memory.json", {"top", "--sort", "memory", "-n", "3", "--json"}},
        {"apps.txt", {"apps"}},
        {"app-chrome.txt", {"app", "Google", "Chrome"}},
        {"app-iterm.json", {"app", "iTerm", "--json"}},
        {"ports.txt", {"ports"}},
        {"ports.json", {"ports", "--json"}},
        {"servers.txt", {"servers"}},
        {"servers.json", {"dev", "--json"}},
        {"docker.txt", {"docker"}},
        {"docker.json", {"docker", "--json"}},
        {"history-today.txt", {"history"}},
        {"history-week.json", {"history", "week", "--json"}},
        {"spikes.txt", {"spikes"}},
        {"spikes.json", {"spikes", "--hours", "48", "--json"}},
        {"help.txt", {"help"}},
    };
    for (const auto& [name, args] : cases) {
        const CliResult result = run(args);
        ASSERT_EQ(result.status, 0) << name;
        ASSERT_EQ(result.out.size(), 1u) << name;
        EXPECT_TRUE(result.err.empty()) << name;
        EXPECT_EQ(compareGolden("cli/" + name, result.out[0] + "\n"), "") << name;
    }
}
