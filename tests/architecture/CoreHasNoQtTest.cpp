// The core library serves the small CLI and MCP executable, the engine the
// recorder on servers: no Qt may creep into either.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace fs = std::filesystem;

TEST(Architecture, NoFileUnderCoreOrTheEngineIncludesQt)
{
    int files = 0;
    for (const char* library : {"core", "engine"})
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(VEXEL_SOURCE_DIR) / library)) {
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

// The programs built on them need no Qt library to start: a server with no
// desktop installs neither Qt nor its dependencies for them.
TEST(Architecture, TheCommandLineAndTheRecorderLoadNoQt)
{
    for (const char* program : {"vexel", "vexel-recorder"}) {
        std::ifstream in(fs::path(VEXEL_BINARY_DIR) / "src" / program, std::ios::binary);
        ASSERT_TRUE(in) << program;
        const std::string binary((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        EXPECT_NE(binary.find("libsqlite3.so"), std::string::npos) << program << ": its libraries aren't named";
        EXPECT_EQ(binary.find("libQt6"), std::string::npos) << program << " loads Qt";
    }
}
