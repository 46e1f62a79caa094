#include "support/StatusArea.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QDateTime>
#include <QTest>

#include <algorithm>
#include <optional>

namespace vexel::testing {

namespace {

const QString itemPath = QStringLiteral("/StatusNotifierItem");
const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
const QString menuInterface = QStringLiteral("com.canonical.dbusmenu");

// The id of the entry labelled `label` in a dbusmenu layout (ia{sv}av), at any depth.
std::optional<int> entryIn(const QDBusArgument& layout, const QString& label)
{
    int id = 0;
    QVariantMap properties;
    std::optional<int> found;
    layout.beginStructure();
    layout >> id >> properties;
    if (properties.value(QStringLiteral("label")).toString().remove(u'&') == label)
        found = id;
    layout.beginArray();
    while (!layout.atEnd()) {
        QDBusVariant child;
        layout >> child;
        if (!found)
            found = entryIn(child.variant().value<QDBusArgument>(), label);
    }
    layout.endArray();
    layout.endStructure();
    return found;
}

} // namespace

QDBusMessage ask(const QDBusMessage& message)
{
    QDBusPendingCall pending = QDBusConnection::sessionBus().asyncCall(message, 10000);
    if (!QTest::qWaitFor([&] { return pending.isFinished(); }, 12000))
        return {};
    return pending.reply();
}

QVariant property(const QString& service, const QString& path, const QString& interface, const QString& name)
{
    auto message = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << interface << name;
    const QDBusMessage reply = ask(message);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    return reply.arguments().front().value<QDBusVariant>().variant();
}

QVariant watcherProperty(const QString& name)
{
    return property(watcherService, QStringLiteral("/StatusNotifierWatcher"), watcherService, name);
}

bool watcherRunning()
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(watcherService).value();
}

bool hostRegistered()
{
    return watcherProperty(QStringLiteral("IsStatusNotifierHostRegistered")).toBool();
}

QStringList registeredItems()
{
    QStringList items = watcherProperty(QStringLiteral("RegisteredStatusNotifierItems")).toStringList();
    for (auto& item : items)
        item = item.section('/', 0, 0);
    std::ranges::sort(items,
        [](const QString& a, const QString& b) { return a.section('.', 1).toInt() < b.section('.', 1).toInt(); });
    return items;
}

bool clickMenuEntry(const QString& item, const QString& label)
{
    const auto menu = property(item, itemPath, itemInterface, QStringLiteral("Menu")).value<QDBusObjectPath>();
    if (menu.path().isEmpty())
        return false;
    auto layoutCall = QDBusMessage::createMethodCall(item, menu.path(), menuInterface, QStringLiteral("GetLayout"));
    layoutCall << 0 << -1 << QStringList{QStringLiteral("label")};
    const auto layout = ask(layoutCall);
    if (layout.type() != QDBusMessage::ReplyMessage || layout.arguments().size() < 2)
        return false;
    const auto id = entryIn(layout.arguments().at(1).value<QDBusArgument>(), label);
    if (!id)
        return false;
    auto click = QDBusMessage::createMethodCall(item, menu.path(), menuInterface, QStringLiteral("Event"));
    click << *id << QStringLiteral("clicked") << QVariant::fromValue(QDBusVariant(0))
          << static_cast<uint>(QDateTime::currentSecsSinceEpoch());
    return ask(click).type() == QDBusMessage::ReplyMessage;
}

bool waitFor(const std::function<bool()>& done)
{
    return QTest::qWaitFor(done, 15000);
}

} // namespace vexel::testing
