// The desktop app's life in a session of its own: `dbus-run-session --
// xvfb-run` gives the test a message bus and a display, where it runs the
// real vexel-app beside Debian's status-notifier-watcher and panel host.

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    if (std::getenv("DISPLAY") == nullptr || std::getenv("DBUS_SESSION_BUS_ADDRESS") == nullptr) {
        std::fprintf(stderr, "run me as: dbus-run-session -- xvfb-run -a %s\n", argv[0]);
        return 1;
    }
    QCoreApplication app(argc, argv); // the bus's answers come through its events
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
