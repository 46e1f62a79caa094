// The panel test runs in a session of its own: `dbus-run-session -- xvfb-run`
// gives it a message bus and a display, on which it starts a status-notifier
// watcher and a panel host, so the real status-area code runs end to end.

#include "Appearance.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    if (std::getenv("DISPLAY") == nullptr || std::getenv("DBUS_SESSION_BUS_ADDRESS") == nullptr) {
        std::fprintf(stderr, "run me as: dbus-run-session -- xvfb-run -a %s\n", argv[0]);
        return 1;
    }
    ::setenv("QT_QPA_PLATFORM", "xcb", 1);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vexel"));
    QApplication::setStyle(QStringLiteral("Fusion"));
    if (!vexel::Look::installFont()) {
        std::fprintf(stderr, "the Inter font is missing: install fonts-inter\n");
        return 1;
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
