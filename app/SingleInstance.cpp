#include "SingleInstance.h"

#include "Logging.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>

namespace vexel {

namespace {

const QString applicationInterface = QStringLiteral("org.freedesktop.Application");
constexpr int activateMilliseconds = 5000;

// What the launcher gave this process to bring a window forward: a Wayland
// activation token, or an X11 startup id.
QVariantMap platformData()
{
    QVariantMap data;
    if (const auto token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); !token.isEmpty())
        data.insert(QStringLiteral("activation-token"), token);
    if (const auto id = qEnvironmentVariable("DESKTOP_STARTUP_ID"); !id.isEmpty())
        data.insert(QStringLiteral("desktop-startup-id"), id);
    return data;
}

QString tokenIn(const QVariant& argument)
{
    // Maps reach a virtual object still marshalled.
    const auto data = qdbus_cast<QVariantMap>(argument);
    const QString token = data.value(QStringLiteral("activation-token")).toString();
    return token.isEmpty() ? data.value(QStringLiteral("desktop-startup-id")).toString() : token;
}

} // namespace

const QString SingleInstance::serviceName = QStringLiteral("dev.vexel.Vexel");
const QString SingleInstance::objectPath = QStringLiteral("/dev/vexel/Vexel");

SingleInstance::SingleInstance(QObject* parent)
    : QDBusVirtualObject(parent)
{
}

SingleInstance::Claim SingleInstance::claim()
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Claim::noBus;
    // The interface first, so that whoever finds the name finds it served.
    bus.registerVirtualObject(objectPath, this);
    const auto reply = bus.interface()->registerService(
        serviceName, QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    if (reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered)
        return Claim::first;
    bus.unregisterObject(objectPath);
    return reply.isValid() ? Claim::another : Claim::noBus;
}

namespace {

// Calls `member` of the Vexel running in this session; whether it answered.
bool askRunning(const QString& member, const QVariantList& arguments)
{
    auto call = QDBusMessage::createMethodCall(
        SingleInstance::serviceName, SingleInstance::objectPath, applicationInterface, member);
    call.setArguments(arguments);
    const auto reply = QDBusConnection::sessionBus().call(call, QDBus::Block, activateMilliseconds);
    return reply.type() == QDBusMessage::ReplyMessage;
}

} // namespace

bool SingleInstance::activateRunning()
{
    return askRunning(QStringLiteral("Activate"), {platformData()});
}

bool SingleInstance::quitRunning()
{
    return askRunning(QStringLiteral("ActivateAction"), {QStringLiteral("quit"), QVariantList(), platformData()});
}

bool SingleInstance::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    if (message.interface() != applicationInterface)
        return false;
    const auto arguments = message.arguments();
    if (message.member() == QStringLiteral("Activate") && arguments.size() == 1) {
        qCInfo(panelLog) << "another launch asks for the window";
        emit activated(tokenIn(arguments.at(0)));
    } else if (message.member() == QStringLiteral("Open") && arguments.size() == 2) {
        emit activated(tokenIn(arguments.at(1))); // Vexel opens no files: the window is what is wanted
    } else if (message.member() == QStringLiteral("ActivateAction") && arguments.size() == 3) {
        const QString action = arguments.at(0).toString();
        if (action == QStringLiteral("quit"))
            emit quitRequested();
        else if (action == QStringLiteral("open-window"))
            emit activated(tokenIn(arguments.at(2)));
        else
            return false;
    } else {
        return false;
    }
    connection.send(message.createReply());
    return true;
}

QString SingleInstance::introspect(const QString&) const
{
    return QStringLiteral(R"(<interface name="org.freedesktop.Application">
  <method name="Activate"><arg type="a{sv}" name="platform_data" direction="in"/></method>
  <method name="Open"><arg type="as" name="uris" direction="in"/><arg type="a{sv}" name="platform_data" direction="in"/></method>
  <method name="ActivateAction"><arg type="s" name="action_name" direction="in"/><arg type="av" name="parameter" direction="in"/><arg type="a{sv}" name="platform_data" direction="in"/></method>
</interface>
)");
}

} // namespace vexel
