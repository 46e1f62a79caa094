#include "processes/linux/ProcPidFiles.h"
#include "io/Files.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

std::string fixture(const std::string& path)
{
    return Files::read(std::string(VEXEL_FIXTURES) + "/proc/" + path).value_or("");
}

std::string procTree(const std::string& path)
{
    return std::string(VEXEL_FIXTURES) + "/linux/proc-tree/proc/" + path;
}

} // namespace

TEST(ProcPidFiles, StatWhoseNameHoldsBlanksAndParentheses)
{
    const auto stat = ProcPidFiles::parseStat(fixture("pid-weird/stat"));
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->comm, "we ird) (x");
    EXPECT_EQ(stat->state, 'S');
    EXPECT_EQ(stat->ppid, 1);
    EXPECT_EQ(stat->utime, 153u);
    EXPECT_EQ(stat->stime, 5u);
    EXPECT_EQ(stat->startTime, 234411u);
    EXPECT_EQ(stat->rssPages, 15622u);
    EXPECT_EQ(stat->threads, 1u);
    EXPECT_FALSE(stat->isKernelThread());
    EXPECT_FALSE(stat->isZombie());

    const auto zombie = ProcPidFiles::parseStat(fixture("pid-zombie/stat"));
    ASSERT_TRUE(zombie);
    EXPECT_TRUE(zombie->isZombie());
    const auto kthreadd = ProcPidFiles::parseStat(fixture("pid-kthreadd/stat"));
    ASSERT_TRUE(kthreadd);
    EXPECT_TRUE(kthreadd->isKernelThread());
    EXPECT_EQ(kthreadd->ppid, 0);
}

TEST(ProcPidFiles, MalformedStatLines)
{
    for (const char* bad :
        {"", "12 (cut", "12 no parens S 1", "12 (a) S 1 2 3", "12 (a) SS 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1",
            "12 (a) S x 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1", ")( S 1"})
        EXPECT_FALSE(ProcPidFiles::parseStat(bad)) << bad;
}

// schedstat as this VM's kernel writes it; one without scheduler statistics writes "0 0 0".
TEST(ProcPidFiles, SchedstatRuntime)
{
    EXPECT_EQ(ProcPidFiles::parseSchedstatRuntime("2519459 632941 2\n"), 2519459u);
    EXPECT_EQ(ProcPidFiles::parseSchedstatRuntime("0 0 0\n"), 0u);
    for (const char* bad : {"", "\n", "1 2", "1 2 3 4", "x 2 3", "1 2 -3", "18446744073709551616 0 0"})
        EXPECT_FALSE(ProcPidFiles::parseSchedstatRuntime(bad)) << bad;
}

TEST(ProcPidFiles, StatusStatmIoAndCgroup)
{
    const auto status = ProcPidFiles::parseStatus(fixture("pid-weird/status"));
    EXPECT_EQ(status.uid, 0u);
    EXPECT_EQ(status.rssAnon, 55904u * 1024);
    EXPECT_EQ(status.vmSwap, 0u);
    EXPECT_FALSE(status.kernelThread);
    EXPECT_TRUE(ProcPidFiles::parseStatus(fixture("pid-kthreadd/status")).kernelThread);
    EXPECT_FALSE(ProcPidFiles::parseStatus(fixture("pid-zombie/status")).rssAnon); // zombies have no Vm lines

    // statm's resident minus shared pages is exactly RssAnon.
    EXPECT_EQ(ProcPidFiles::parseStatmAnonPages(fixture("pid-weird/statm")), 55904u / 4);
    EXPECT_EQ(ProcPidFiles::parseStatmAnonPages("0 0 0 0 0 0 0"), 0u);
    EXPECT_EQ(ProcPidFiles::parseStatmAnonPages("10 5 9"), 0u); // torn read: shared above resident
    EXPECT_FALSE(ProcPidFiles::parseStatmAnonPages("10 5"));

    EXPECT_EQ(ProcPidFiles::parseIo(fixture("pid-weird/io")), (ProcPidFiles::Io{2514944, 4014080}));
    EXPECT_FALSE(ProcPidFiles::parseIo(fixture("pid-init/io"))); // refused: an empty read
    EXPECT_FALSE(ProcPidFiles::parseIo("read_bytes: 5\n"));

    // This VM mounts cgroup v1 with systemd's named hierarchy at "/".
    EXPECT_EQ(ProcPidFiles::parseCgroup(fixture("pid-weird/cgroup")), "/");
    EXPECT_EQ(ProcPidFiles::parseCgroup("0::/user.slice/user-1000.slice/user@1000.service/app.slice/"
                                        "app-gnome-firefox-2345.scope\n"),
        "/user.slice/user-1000.slice/user@1000.service/app.slice/app-gnome-firefox-2345.scope");
    EXPECT_EQ(
        ProcPidFiles::parseCgroup("1:name=systemd:/system.slice/cron.service\n0::/\n"), "/system.slice/cron.service");
    EXPECT_FALSE(ProcPidFiles::parseCgroup("5:cpu:/\n"));
}

TEST(ProcPidFiles, ExeLinksThatAreNoFile)
{
    using Link = ProcPidFiles::ExeLink;
    EXPECT_EQ(ProcPidFiles::parseExeLink("/usr/bin/vim.basic"), (Link{"/usr/bin/vim.basic", false, false}));
    EXPECT_EQ(ProcPidFiles::parseExeLink("/opt/app/bin/app (deleted)"), (Link{"/opt/app/bin/app", true, false}));
    EXPECT_EQ(ProcPidFiles::parseExeLink(Files::readLink(procTree("1210/exe")).value_or("")),
        (Link{"/memfd:sealed-91173221a7ea", true, true}));
    EXPECT_TRUE(ProcPidFiles::parseExeLink("memfd:runc (deleted)").inMemory);
    EXPECT_FALSE(ProcPidFiles::parseExeLink("/usr/lib/memfd:x").inMemory); // only a link that starts so

    EXPECT_EQ(ProcPidFiles::programName(Files::read(procTree("1210/cmdline")).value_or("")), "binary_backend");
    EXPECT_EQ(ProcPidFiles::programName(std::string("node\0server.js\0", 16)), "node");
    EXPECT_EQ(ProcPidFiles::programName(""), "");
    EXPECT_EQ(ProcPidFiles::programName("dir/"), "");

    // A name the kernel cut is made whole only by the executable it was cut from.
    EXPECT_EQ(ProcPidFiles::fullName("test_history_sl", "/build/tests/test_history_slow"), "test_history_slow");
    EXPECT_EQ(ProcPidFiles::fullName("unattended-upgr", "/usr/bin/python3.11"), "unattended-upgr");
    EXPECT_EQ(ProcPidFiles::fullName("next-server (v1", "/usr/bin/node"), "next-server (v1");
    EXPECT_EQ(ProcPidFiles::fullName("gsd-color", "/usr/libexec/gsd-color-extra"), "gsd-color"); // not cut
    EXPECT_EQ(ProcPidFiles::fullName("rust-analyzer-p", ""), "rust-analyzer-p");
}

TEST(ProcPidFiles, FlatpakInfoAndEnviron)
{
    // The keyfile flatpak writes at the sandbox's root (flatpak-metadata(5)).
    const std::string info = "[Application]\nname=org.telegram.desktop\nruntime=runtime/org.kde.Platform/x86_64/"
                             "5.15-23.08\n\n[Instance]\ninstance-id=1295026887\nbranch=stable\narch=x86_64\n";
    EXPECT_EQ(ProcPidFiles::parseFlatpakInfo(info), "org.telegram.desktop");
    EXPECT_FALSE(ProcPidFiles::parseFlatpakInfo("[Instance]\nname=not-the-app\n"));
    EXPECT_FALSE(ProcPidFiles::parseFlatpakInfo("[Application]\nname=\n"));
    EXPECT_FALSE(ProcPidFiles::parseFlatpakInfo(""));

    const std::string variables("HOME=/home/alice\0APPDIR=/tmp/.mount_ObsidiK3xYz9\0APPIMAGE=/home/alice/"
                                "Applications/Obsidian-1.5.3.AppImage\0ARGV0=./Obsidian-1.5.3.AppImage\0",
        139);
    EXPECT_EQ(ProcPidFiles::environValue(variables, "APPIMAGE"), "/home/alice/Applications/Obsidian-1.5.3.AppImage");
    EXPECT_EQ(ProcPidFiles::environValue(variables, "HOME"), "/home/alice");
    EXPECT_FALSE(ProcPidFiles::environValue(variables, "APP"));
    EXPECT_FALSE(ProcPidFiles::environValue("APPIMAGE", "APPIMAGE"));
    EXPECT_FALSE(ProcPidFiles::environValue("", "APPIMAGE"));
}

TEST(ProcPidFiles, ProcMountsThatHideOtherUsers)
{
    // /proc as this VM mounts it, then proc instances mounted here with the options.
    const std::string plain = "21 26 0:20 / /proc rw,relatime - proc proc rw\n";
    EXPECT_FALSE(ProcPidFiles::procHidesOthers(plain));
    EXPECT_TRUE(ProcPidFiles::procHidesOthers(
        "41 26 0:38 / /tmp/hp rw,relatime - proc proc rw,hidepid=invisible\n", "/tmp/hp"));
    EXPECT_TRUE(
        ProcPidFiles::procHidesOthers("41 26 0:38 / /tmp/hp rw,relatime - proc proc rw,subset=pid\n", "/tmp/hp"));
    EXPECT_TRUE(
        ProcPidFiles::procHidesOthers(plain + "52 21 0:41 / /proc rw,relatime - proc proc rw,hidepid=noaccess\n"));
    EXPECT_FALSE(ProcPidFiles::procHidesOthers("52 21 0:41 / /proc rw,relatime - proc proc rw,hidepid=off\n"));
    EXPECT_FALSE(ProcPidFiles::procHidesOthers("41 26 0:38 / /tmp/hp rw - proc proc rw,hidepid=invisible\n"));
    EXPECT_FALSE(ProcPidFiles::procHidesOthers("52 21 0:41 / /proc rw - tmpfs tmpfs rw,hidepid=2\n"));
    EXPECT_FALSE(ProcPidFiles::procHidesOthers(""));
}
