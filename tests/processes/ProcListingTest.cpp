#include "processes/linux/ProcListing.h"

#include "io/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <span>

using namespace vexel;

namespace {

// The records getdents64 gave for this machine's /proc: 118 entries, 65 of them processes.
std::string capturedRecords()
{
    return Files::read(std::string(VEXEL_FIXTURES) + "/linux/proc-getdents64.bin").value_or("");
}

std::vector<int32_t> pidsIn(std::string_view records)
{
    std::vector<int32_t> pids;
    ProcListing::addPids(std::span(records.data(), records.size()), pids);
    return pids;
}

} // namespace

TEST(ProcListing, ProcessesAmongTheRecordsOfARealProc)
{
    const auto records = capturedRecords();
    ASSERT_EQ(records.size(), 3200u);
    const auto pids = pidsIn(records);
    ASSERT_EQ(pids.size(), 65u); // not "self", "thread-self", "sys" or "."
    EXPECT_EQ(pids.front(), 1);
    EXPECT_EQ(pids.back(), 26048);

    // A cut buffer gives the whole records before the cut; a record whose
    // length is no record's stops the walk.
    EXPECT_LT(pidsIn(std::string_view(records).substr(0, records.size() - 10)).size(), 65u);
    EXPECT_TRUE(pidsIn(std::string_view(records).substr(0, 19)).empty());
    for (const uint16_t length : {uint16_t{0}, uint16_t{19}, uint16_t{0xffff}}) {
        std::string broken = records;
        std::memcpy(broken.data() + 16, &length, sizeof length);
        EXPECT_TRUE(pidsIn(broken).empty()) << length;
    }

    for (const char* name : {"", "12a", "123456789"})
        EXPECT_FALSE(ProcListing::pidOf(name)) << name;
}

// A folder whose list outgrows the buffer is read in several calls, and the
// buffer grows so that the next reading takes one.
TEST(ProcListing, ReadsAFolderOfAnySize)
{
    vexel::testing::TempFolder folder("vexel-listing");
    for (int pid = 1; pid <= 3000; ++pid)
        std::ofstream(folder.path() / std::to_string(pid));
    std::ofstream(folder.path() / "self");
    ProcListing listing;
    std::vector<int32_t> pids{42};
    for (int reading = 0; reading < 2; ++reading) {
        ASSERT_TRUE(listing.read(folder.path().string(), pids));
        std::sort(pids.begin(), pids.end());
        ASSERT_EQ(pids.size(), 3000u);
        EXPECT_EQ(pids.front(), 1);
        EXPECT_EQ(pids.back(), 3000);
    }
    EXPECT_FALSE(listing.read("/nonexistent/proc", pids));
    EXPECT_TRUE(pids.empty()) << "couldn't look is not an old list";
}
