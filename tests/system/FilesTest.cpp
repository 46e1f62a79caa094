#include "io/Files.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace vexel;
namespace fs = std::filesystem;

TEST(Files, ReadsWholeFilesUpToTheCap)
{
    const vexel::testing::TempFolder temp("vexel-files");
    const auto& folder = temp.path();
    fs::create_directories(folder);
    const std::string big(100000, 'z');
    std::ofstream(folder / "big") << big;
    EXPECT_EQ(Files::read((folder / "big").string()), big);
    EXPECT_EQ(Files::read((folder / "big").string(), 10), std::string(10, 'z'));
    std::ofstream(folder / "empty").flush();
    EXPECT_EQ(Files::read((folder / "empty").string()), "");

    EXPECT_FALSE(Files::read((folder / "missing").string()));
    EXPECT_FALSE(Files::read(folder.string())) << "a folder is not a readable file";
    std::string buffer = "old";
    EXPECT_FALSE(Files::readInto((folder / "missing").string(), buffer));
    EXPECT_TRUE(buffer.empty());

    fs::create_symlink("big", folder / "link");
    fs::create_symlink("nowhere", folder / "dangling");
    EXPECT_EQ(Files::readLink((folder / "link").string()), "big");
    EXPECT_EQ(Files::readLink((folder / "dangling").string()), "nowhere");
    EXPECT_FALSE(Files::readLink((folder / "big").string()));
    EXPECT_EQ(Files::realPath((folder / "link").string()), fs::canonical(folder / "big").string());
    EXPECT_FALSE(Files::realPath((folder / "dangling").string()));
    EXPECT_TRUE(Files::exists((folder / "link").string()));
    EXPECT_FALSE(Files::exists((folder / "dangling").string()));
    auto names = Files::list(folder.string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"big", "dangling", "empty", "link"}));
    EXPECT_TRUE(Files::list((folder / "big").string()).empty());
}

TEST(Files, ProcFilesReportNoSizeButStillReadWhole)
{
    // /proc/self/status is generated on read and stat() says 0 bytes.
    const auto status = Files::read("/proc/self/status");
    ASSERT_TRUE(status);
    EXPECT_NE(status->find("VmRSS"), std::string::npos);
}
