// The readings in a real panel: Debian's status-notifier-watcher and
// gtk-sni-tray-standalone on a virtual display. The enabled items register
// in the configured order (read back over D-Bus), their pictures show in the
// panel (photographed and compared), disabling them all removes them,
// reordering re-creates them in the new order, and activating an item over
// D-Bus opens its dropdown and a second activation closes it.

#include "../app/DemoModel.h"
#include "panel/MenuBarController.h"
#include "support/ChildProcess.h"
#include "support/GoldenImage.h"
#include "support/RunTool.h"
#include "support/StatusArea.h"
#include "support/TempFolder.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QImage>
#include <QSystemTrayIcon>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

using namespace vexel;
using vexel::testing::ChildProcess;
using vexel::testing::DemoModel;
using namespace vexel::testing;

namespace {

constexpr int panelHeight = 30;

// The first word of each registered item's tooltip, in registration order.
QStringList registeredKinds()
{
    QStringList kinds;
    for (const auto& item : registeredItems())
        kinds << toolTipOf(item).section(' ', 0, 0);
    return kinds;
}

// The panel's strip, photographed from the screen as a user sees it.
QImage photographPanel(const std::filesystem::path& folder)
{
    const auto file = folder / "panel.png";
    const auto run = vexel::testing::runTool({"import", "-window", "root", file.string()}, {{}, ""});
    if (run.status != 0)
        return {};
    return QImage(QString::fromStdString(file.string()))
        .copy(0, 0, 400, panelHeight)
        .convertToFormat(QImage::Format_RGB32);
}

// The last column of the photograph that is not the panel's background.
int rightmostInk(const QImage& photo)
{
    if (photo.isNull())
        return -1;
    const QColor background = photo.pixelColor(photo.width() - 1, 0);
    for (int x = photo.width() - 1; x >= 0; --x)
        for (int y = 0; y < photo.height(); ++y)
            if (photo.pixelColor(x, y) != background)
                return x;
    return -1;
}

} // namespace

TEST(PanelSession, ItemsRegisterShowFollowTheSettingsAndOpenTheirDropdowns)
{
    ChildProcess watcherProcess({"/usr/bin/status-notifier-watcher"});
    ASSERT_TRUE(
        waitFor([] { return QDBusConnection::sessionBus().interface()->isServiceRegistered(watcherService).value(); }));
    ChildProcess host(
        {"/usr/bin/gtk-sni-tray-standalone", "--top", "--beginning", "--size", std::to_string(panelHeight)});
    ASSERT_TRUE(waitFor([] { return watcherProperty(QStringLiteral("IsStatusNotifierHostRegistered")).toBool(); }));
    ASSERT_TRUE(QSystemTrayIcon::isSystemTrayAvailable());

    // The model's own timer waits an hour: the pictures stay those of the three ticks below.
    DemoModel demo([](VexelSettings& settings) { settings.sampleSeconds = 3600; });
    auto& model = *demo.model;
    demo.ticks(3, true);
    auto settings = model.settings();
    for (auto& item : settings.menuItems)
        item.enabled = true;
    model.changeSettings(settings);
    MenuBarController panel(model, Appearance::dark, {[] {}, [] {}, [] {}});
    panel.start();

    // All seven, in the configured order.
    const QStringList configured{"CPU", "Memory", "Network", "Heat", "Battery", "Disk", "GPU"};
    ASSERT_TRUE(waitFor([] { return registeredItems().size() == 7; })) << registeredItems().join(' ').toStdString();
    EXPECT_EQ(registeredKinds(), configured);

    // Their pictures show in the panel, left to right, as on the golden photograph.
    vexel::testing::TempFolder folder("vexel-panel");
    const auto goldenFile = std::filesystem::path(VEXEL_SOURCE_DIR) / "tests/golden/panel/seven-items.png";
    // The host draws the items as they come: the photograph is taken once
    // all seven show (the last reaches past 150 pixels) and it holds still.
    QImage photo;
    QImage previous;
    ASSERT_TRUE(waitFor([&] {
        previous = photo;
        photo = photographPanel(folder.path());
        return !photo.isNull() && photo == previous && rightmostInk(photo) > 150;
    })) << "the panel never showed seven items; rightmost ink at "
        << rightmostInk(photo);
    vexel::testing::expectGoldenImage(photo, goldenFile);

    // Reordered: re-created in the new order.
    std::swap(settings.menuItems[0], settings.menuItems[2]);
    model.changeSettings(settings);
    const QStringList reordered{"Network", "Memory", "CPU", "Heat", "Battery", "Disk", "GPU"};
    ASSERT_TRUE(waitFor([&] { return registeredKinds() == reordered; })) << registeredKinds().join(' ').toStdString();

    // A click (the host's Activate) opens the dropdown; a second closes it.
    auto activate = QDBusMessage::createMethodCall(registeredItems().at(2), QStringLiteral("/StatusNotifierItem"),
        QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("Activate"));
    activate << 10 << 10;
    ask(activate);
    ASSERT_TRUE(waitFor([&] { return panel.dropdown() != nullptr; }));
    EXPECT_EQ(panel.dropdown()->kind(), MenuItemKind::cpu);
    EXPECT_TRUE(waitFor([&] { return panel.dropdown()->isVisible(); }));
    demo.settle();
    ask(activate);
    EXPECT_TRUE(waitFor([&] { return panel.dropdown() == nullptr; }));

    // All off: none left in the panel.
    for (auto& config : settings.menuItems)
        config.enabled = false;
    model.changeSettings(settings);
    EXPECT_TRUE(waitFor([] { return registeredItems().isEmpty(); })) << registeredItems().join(' ').toStdString();
    EXPECT_TRUE(panel.order().empty());
}
