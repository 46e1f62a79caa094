// The manual pages and completions as installed, read by the real man and
// shells: they offer what the programs take.

#include "support/RunTool.h"

#include <gtest/gtest.h>

using vexel::testing::runTool;

namespace {

const std::string docs = std::string(VEXEL_BINARY_DIR) + "/docs/";

} // namespace

TEST(CommandDocs, ShellsCompleteCommandsSortKeysAndRanges)
{
    const auto bash = runTool({"bash", "-c",
        "source " + docs
            + "completions/vexel; ask() { COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _vexel; "
              "echo \"${COMPREPLY[*]}\"; }; ask vexel top --sort ''; ask vexel history ''; "
              "ask vexel sp; ask vexel --da; source "
            + docs
            + "completions/vexel-recorder; COMP_WORDS=(vexel-recorder --metrics-t); COMP_CWORD=1; "
              "_vexel_recorder; echo \"${COMPREPLY[*]}\""});
    EXPECT_EQ(
        bash.out, "cpu memory energy disk network\ntoday week month year\nspikes\n--data-dir\n--metrics-token-file\n")
        << bash.err;
    const auto fish = runTool({"fish", "-c",
        "source " + docs + "completions/vexel.fish; complete -C 'vexel history '; complete -C 'vexel top --sort m'"});
    EXPECT_EQ(fish.out, "month\ntoday\nweek\nyear\nmemory\tthe order of top: cpu, memory, energy, disk, network\n")
        << fish.err;
    for (const char* program : {"vexel", "vexel-app", "vexel-recorder"}) {
        const auto zsh = runTool({"zsh", "-n", docs + "completions/_" + program});
        EXPECT_EQ(zsh.status, 0) << program << ": " << zsh.err;
        const auto man
            = runTool({"man", "--warnings", "-l", docs + "man/" + program + ".1.gz"}, {{{"MANWIDTH", "80"}}, ""});
        EXPECT_EQ(man.status, 0) << program;
        EXPECT_EQ(man.err, "") << program;
        EXPECT_NE(man.out.find("EXIT STATUS"), std::string::npos) << program;
    }
}
