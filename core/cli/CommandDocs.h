#pragma once

#include "cli/CommandTable.h"

#include <string>

namespace vexel::CommandDocs {

// A program's manual page, in man(7) roff, from its command table.
[[nodiscard]] std::string manPage(const CommandTable::Program& program, const std::string& version);

// Its completions: commands, options, and the values of those that take few
// (--sort's keys, history's ranges).
[[nodiscard]] std::string bashCompletion(const CommandTable::Program& program);
[[nodiscard]] std::string zshCompletion(const CommandTable::Program& program);
[[nodiscard]] std::string fishCompletion(const CommandTable::Program& program);

} // namespace vexel::CommandDocs
