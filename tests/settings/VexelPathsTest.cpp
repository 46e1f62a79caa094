#include "settings/VexelPaths.h"

#include <gtest/gtest.h>

#include <map>

using namespace vexel;

namespace {

auto environment(std::map<std::string, std::string> values)
{
    return [values](const char* name) -> std::optional<std::string> {
        const auto it = values.find(name);
        return it == values.end() ? std::nullopt : std::optional(it->second);
    };
}

} // namespace

TEST(VexelPaths, TheEnvironmentOverrideIsTakenLiterally)
{
    const auto paths = VexelPaths::standard(environment({{"VEXEL_DATA_DIR", "/tmp/F"}, {"HOME", "/home/a"}}));
    EXPECT_EQ(paths.settings(), "/tmp/F/settings.json");
    EXPECT_EQ(paths.history(), "/tmp/F/history.sqlite");
    EXPECT_EQ(paths.activity(), "/tmp/F/server-activity.json");
    EXPECT_EQ(VexelPaths::standard(environment({{"VEXEL_DATA_DIR", "~/x"}})).dir, "~/x");
}

TEST(VexelPaths, FallsBackToTheXdgDataFolder)
{
    // An empty override is ignored.
    EXPECT_EQ(VexelPaths::standard(environment({{"VEXEL_DATA_DIR", ""}, {"HOME", "/home/a"}})).dir,
        "/home/a/.local/share/vexel");
    EXPECT_EQ(
        VexelPaths::standard(environment({{"XDG_DATA_HOME", "/data/a"}, {"HOME", "/home/a"}})).dir, "/data/a/vexel");
    // A relative XDG_DATA_HOME is invalid and ignored.
    EXPECT_EQ(VexelPaths::standard(environment({{"XDG_DATA_HOME", "data"}, {"HOME", "/home/a"}})).dir,
        "/home/a/.local/share/vexel");
    // Without HOME the password database names the home folder.
    const auto fromPasswd = VexelPaths::standard(environment({})).dir.string();
    EXPECT_TRUE(fromPasswd.ends_with("/.local/share/vexel")) << fromPasswd;
    EXPECT_TRUE(fromPasswd.starts_with("/")) << fromPasswd;
    EXPECT_EQ(VexelPaths(std::filesystem::path("/demo")).history(), "/demo/history.sqlite");
}
