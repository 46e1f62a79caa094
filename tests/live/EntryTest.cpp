#include "Entry.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

using Args = std::vector<std::string>;

} // namespace

TEST(Entry, DispatchOrder)
{
    struct Case {
        const char* name;
        Args args;
        Role role;
        Args rest;
        bool versionFromProgram;
    };
    const Case cases[] = {
        {"mcp-beats-cli-name", {"/usr/bin/vexel", "--mcp", "status"}, Role::mcp, {}, true},
        {"mcp-as-program-path", {"--mcp"}, Role::mcp, {}, true},
        {"mcp-anywhere-in-app", {"/opt/vexel/vexel-app", "x", "--mcp"}, Role::mcp, {}, true},
        {"vexel-alone", {"/usr/local/bin/vexel"}, Role::cli, {}, false},
        {"vexel-mcp-keeps-default-version", {"/usr/local/bin/vexel", "mcp"}, Role::mcp, {}, false},
        {"name-is-exact", {"/opt/Vexel/Vexel"}, Role::desktop, {}, false},
        {"cli-flag", {"/opt/vexel/vexel-app", "--cli", "status"}, Role::cli, {"status"}, false},
        {"cli-only-first", {"/opt/vexel/vexel-app", "status", "--cli"}, Role::desktop, {}, false},
        {"cli-removed-once", {"/opt/vexel/vexel-app", "--cli", "--cli", "status"}, Role::cli, {"--cli", "status"},
            false},
        {"vexel-cli-removed", {"vexel", "--cli", "top"}, Role::cli, {"top"}, false},
        {"cli-then-mcp", {"/opt/vexel/vexel-app", "--cli", "mcp"}, Role::mcp, {}, false},
        {"mcp-not-first", {"vexel", "top", "mcp"}, Role::cli, {"top", "mcp"}, false},
        {"nothing", {}, Role::desktop, {}, false},
    };
    for (const auto& c : cases) {
        const Dispatch chosen = dispatch(c.args);
        EXPECT_EQ(chosen.role, c.role) << c.name;
        EXPECT_EQ(chosen.rest, c.rest) << c.name;
        EXPECT_EQ(chosen.versionFromProgram, c.versionFromProgram) << c.name;
    }
}

// The desktop program is only ever the one beside this program's own file.
TEST(Entry, TheDesktopProgramIsTheOneBesideThisOne)
{
    EXPECT_EQ(siblingProgram("/usr/local/bin/vexel", "vexel-app"), "/usr/local/bin/vexel-app");
    EXPECT_EQ(siblingProgram("/opt/vexel/vexel (deleted)", "vexel-app"), "/opt/vexel/vexel-app");
    EXPECT_FALSE(siblingProgram(std::nullopt, "vexel-app")) << "never ./vexel-app when /proc/self/exe can't be read";
    EXPECT_FALSE(siblingProgram("vexel", "vexel-app"));
}
