#pragma once

#include "platform/Platform.h"

#include <string>
#include <vector>

namespace vexel::CommandTable {

// The one description of each program's command line: its help text, its
// manual page and its shell completions are all drawn from it, so that none
// of them can name a command or option the program doesn't have.

struct Option {
    std::vector<std::string> spellings; // "-n", "--limit"
    std::string value; // what follows it ("N", "KEY"), empty for a flag
    std::string summary; // one line, for the help
    std::vector<std::string> choices; // the values it takes, when they are few
    bool inHelp = true; // listed in --help (the manual lists every option)
};

struct Command {
    std::string name; // empty for a program without commands
    std::string arguments; // as the help shows them: "[-n N] [--sort KEY]"
    std::string summary;
    std::vector<std::string> choices; // values of its first argument ("today", …)
};

struct Variable {
    std::string name;
    std::string summary;
};

struct Program {
    std::string name;
    std::string headline; // the help's first line
    std::string purpose; // the manual's one-line NAME
    std::vector<std::string> description; // the manual's paragraphs
    std::vector<Command> commands;
    std::vector<Option> options;
    std::vector<Variable> environment;
    std::vector<std::string> exitStatus; // "0 …", a paragraph each
    std::vector<std::string> seeAlso; // "vexel-app(1)"
};

[[nodiscard]] const Program& cli(Platform platform);
[[nodiscard]] const Program& app();
[[nodiscard]] const Program& recorder();

// The help: each command and option with its summary in a second column.
[[nodiscard]] std::string usage(const Program& program);

} // namespace vexel::CommandTable
