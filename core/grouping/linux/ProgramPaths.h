#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vexel::ProgramPaths {

// The real path of a desktop entry's program on a machine whose files lie
// below `root` ("" for this machine): a bare name is looked for in
// `searchPath`, and symbolic links are followed inside the root, an absolute
// target read below it as well (Debian's /usr/bin/vim → /etc/alternatives/vim
// → /usr/bin/vim.basic). Nothing when the program is not there or a link
// leads nowhere.
[[nodiscard]] std::optional<std::string> resolve(
    const std::string& root, const std::string& program, const std::vector<std::string>& searchPath);

// The real path of `path` (absolute) below `root`, every link followed.
[[nodiscard]] std::optional<std::string> realPathUnder(const std::string& root, const std::string& path);

} // namespace vexel::ProgramPaths
