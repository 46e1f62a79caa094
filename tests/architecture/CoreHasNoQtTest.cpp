// The core library serves the small CLI and MCP executable: no Qt may creep in.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

TEST(Architecture, NoFileUnderCoreIncludesQt)
{
    const fs::path core = fs::path(VEXEL_SOURCE_DIR) / "core";
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(core)) {
        if (!entry.is_regular_file())
            continue;
        const auto extension = entry.path().extension();
        if (extension != ".h" && extension != ".cpp")
            continue;
        ++files;
        std::ifstream in(entry.path());
        std::string line;
        while (std::getline(in, line)) {
            const auto start = line.find_first_not_of(" \t");
            if (start == std::string::npos || line.compare(start, 8, "#include") != 0)
                continue;
            EXPECT_EQ(line.find("<Q"), std::string::npos) << entry.path() << ": " << line;
        }
    }
    EXPECT_GT(files, 20);
}
