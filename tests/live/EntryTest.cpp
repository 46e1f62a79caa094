#include "Entry.h"

#include "support/RunTool.h"
#include "system/SnapshotJson.h"

#include <gtest/gtest.h>

using namespace vexel;

TEST(Entry, RoleFromArgumentsAndName)
{
    EXPECT_EQ(chooseRole({"/usr/bin/vexel", "--mcp", "status"}), Role::mcp);
    EXPECT_EQ(chooseRole({"--mcp"}), Role::mcp);
    EXPECT_EQ(chooseRole({"/usr/local/bin/vexel"}), Role::cli);
    EXPECT_EQ(chooseRole({"/opt/Vexel/Vexel"}), Role::desktop); // the name comparison is exact
    EXPECT_EQ(chooseRole({"/opt/vexel/vexel-app", "--cli", "status"}), Role::cli);
    EXPECT_EQ(chooseRole({"/opt/vexel/vexel-app", "status", "--cli"}), Role::desktop);
    EXPECT_EQ(chooseRole({}), Role::desktop);
}

TEST(Entry, DesktopRoleGoesToTheLauncher)
{
    std::vector<std::string> seen;
    const int status = run({"/opt/vexel/vexel-app", "--hidden"}, [&](const std::vector<std::string>& args) {
        seen = args;
        return 7;
    });
    EXPECT_EQ(status, 7);
    EXPECT_EQ(seen, (std::vector<std::string>{"/opt/vexel/vexel-app", "--hidden"}));
}

TEST(Entry, TheVexelCommandPrintsALiveSnapshot)
{
    const auto result = vexel::testing::runTool({std::string(VEXEL_BINARY_DIR) + "/src/vexel"});
    ASSERT_EQ(result.status, 0);
    const auto json = nlohmann::ordered_json::parse(result.out, nullptr, false);
    ASSERT_FALSE(json.is_discarded()) << result.out;
    const auto snapshot = snapshotFromJson(json);
    ASSERT_TRUE(snapshot) << result.out;
    EXPECT_FALSE(snapshot->cpu.cores.empty());
    EXPECT_GT(snapshot->memory.total, 0u);
    EXPECT_FALSE(snapshot->disk.volumes.empty());
}
