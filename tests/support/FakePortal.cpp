#include "support/FakePortal.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>

namespace vexel::testing {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString group = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");

} // namespace

FakePortal::FakePortal(unsigned scheme)
    : m_scheme(scheme)
{
    auto bus = QDBusConnection::sessionBus();
    m_serving = bus.registerVirtualObject(path, this) && bus.registerService(service);
}

FakePortal::~FakePortal()
{
    auto bus = QDBusConnection::sessionBus();
    bus.unregisterService(service);
    bus.unregisterObject(path);
}

void FakePortal::setScheme(unsigned scheme)
{
    m_scheme = scheme;
    auto signal = QDBusMessage::createSignal(path, settings, QStringLiteral("SettingChanged"));
    signal << group << key << QVariant::fromValue(QDBusVariant(m_scheme));
    QDBusConnection::sessionBus().send(signal);
}

bool FakePortal::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    if (message.interface() != settings || message.member() != QStringLiteral("Read"))
        return false;
    const auto arguments = message.arguments();
    if (arguments.size() != 2 || arguments.at(0).toString() != group || arguments.at(1).toString() != key) {
        connection.send(message.createErrorReply(
            QStringLiteral("org.freedesktop.portal.Error.NotFound"), QStringLiteral("Requested setting not found")));
        return true;
    }
    // Read answers the value in a variant of its own, as the portals of Debian 12 do.
    const QVariant inner = QVariant::fromValue(QDBusVariant(m_scheme));
    connection.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
    return true;
}

QString FakePortal::introspect(const QString&) const
{
    return QStringLiteral(R"(<interface name="org.freedesktop.portal.Settings">
  <method name="Read"><arg type="s" name="namespace" direction="in"/><arg type="s" name="key" direction="in"/><arg type="v" name="value" direction="out"/></method>
  <signal name="SettingChanged"><arg type="s" name="namespace"/><arg type="s" name="key"/><arg type="v" name="value"/></signal>
</interface>
)");
}

} // namespace vexel::testing
