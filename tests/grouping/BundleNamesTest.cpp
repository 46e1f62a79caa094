#include "monitor/BundleNames.h"
#include "monitor/PlistReader.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <thread>

using namespace vexel;
namespace fs = std::filesystem;

TEST(PlistReader, TopLevelStringsOfAnInfoPlist)
{
    const auto plist = std::string(VEXEL_FIXTURES) + "/plist/Info.plist";
    std::ifstream in(plist);
    const std::string xml((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    EXPECT_EQ(PlistReader::topLevelString(xml, "CFBundleName"), "Code");
    EXPECT_EQ(PlistReader::topLevelString(xml, "CFBundleDisplayName"), "Visual Studio Code");
    EXPECT_EQ(PlistReader::topLevelString(xml, "NSHumanReadableCopyright"), "© Microsoft & friends");
    EXPECT_FALSE(PlistReader::topLevelString(xml, "LSMinimumSystemVersionByArchitecture")); // nested, not top level
    EXPECT_FALSE(PlistReader::topLevelString(xml, "NSHighResolutionCapable")); // a boolean
    EXPECT_FALSE(PlistReader::topLevelString("<dict><key>A</key><string>x</string></dict>", "A")); // not a plist
    EXPECT_FALSE(
        PlistReader::topLevelString("<plist><dict><key>A</key><string>x &bogus; y</string></dict></plist>", "A"));
}

TEST(BundleNames, BundlesAndDesktopFilesAreReadOnceAndCached)
{
    const vexel::testing::TempFolder temp("vexel-bundles");
    const auto& folder = temp.path();
    fs::create_directories(folder / "Code.app/Contents");
    fs::copy_file(fs::path(VEXEL_FIXTURES) / "plist/Info.plist", folder / "Code.app/Contents/Info.plist");
    std::ofstream(folder / "app.desktop") << "[Desktop Entry]\nType=Application\nName=Editor\nExec=ed\n";
    BundleNames names;
    EXPECT_EQ(names.name((folder / "Code.app").string()), "Visual Studio Code");
    EXPECT_EQ(names.name((folder / "app.desktop").string()), "Editor");
    EXPECT_FALSE(names.name((folder / "Missing.app").string()));
    // Cached: the files may go, the names stay (and so does a cached "no name").
    fs::remove_all(folder);
    std::vector<std::thread> readers;
    for (int i = 0; i < 4; ++i)
        readers.emplace_back([&] {
            for (int j = 0; j < 100; ++j)
                EXPECT_EQ(names.name((folder / "Code.app").string()), "Visual Studio Code");
        });
    for (auto& reader : readers)
        reader.join();
    fs::create_directories(folder / "Missing.app/Contents");
    std::ofstream(folder / "Missing.app/Contents/Info.plist") << "<plist><dict><key>CFBundleName</key>"
                                                                 "<string>Late</string></dict></plist>";
    EXPECT_FALSE(names.name((folder / "Missing.app").string()));
}
