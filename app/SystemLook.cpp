#include "SystemLook.h"

#include "Logging.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace vexel {

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString schemeKey = QStringLiteral("color-scheme");

} // namespace

SystemLook::SystemLook(QDBusConnection bus, QObject* parent)
    : QObject(parent)
    , m_bus(std::move(bus))
    , m_platform(QApplication::palette())
{
}

void SystemLook::start()
{
    apply(Scheme::noPreference);
    if (!m_bus.isConnected())
        return;
    if (!m_bus.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
            SLOT(settingChanged(QDBusMessage))))
        qCWarning(lookLog) << "can't follow the portal's colour scheme:" << m_bus.lastError().message();
    auto call = QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    call << appearanceGroup << schemeKey;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &SystemLook::read);
}

Appearance SystemLook::appearance() const
{
    return appearanceOf(QApplication::palette());
}

void SystemLook::read(QDBusPendingCallWatcher* call)
{
    call->deleteLater();
    const QDBusPendingReply<QVariant> reply = *call;
    if (reply.isError()) {
        // No portal (a bare window manager, an older desktop): the platform's look stands.
        qCInfo(lookLog) << "no colour scheme from the desktop portal:" << reply.error().message();
        return;
    }
    // A change that came in while Vexel asked is newer than the answer.
    if (const auto scheme = schemeOf(reply.value()); scheme && !m_heardChange)
        apply(*scheme);
}

void SystemLook::settingChanged(const QDBusMessage& message)
{
    const auto arguments = message.arguments();
    if (arguments.size() != 3 || arguments.at(0).toString() != appearanceGroup
        || arguments.at(1).toString() != schemeKey)
        return;
    if (const auto scheme = schemeOf(arguments.at(2))) {
        m_heardChange = true;
        apply(*scheme);
    }
}

void SystemLook::apply(Scheme scheme)
{
    const Appearance before = appearance();
    QApplication::setPalette(paletteFor(scheme, m_platform));
    qCInfo(lookLog) << "colour scheme" << static_cast<unsigned>(scheme);
    if (appearance() != before)
        emit changed(appearance());
}

QPalette SystemLook::paletteFor(Scheme scheme, const QPalette& platform)
{
    if (scheme == Scheme::noPreference)
        return platform;
    const Appearance asked = scheme == Scheme::dark ? Appearance::dark : Appearance::light;
    return appearanceOf(platform) == asked ? platform : Look::palette(asked);
}

std::optional<SystemLook::Scheme> SystemLook::schemeOf(const QVariant& value)
{
    QVariant inner = value;
    // Read answers a variant in a variant; SettingChanged carries one.
    for (int depth = 0; depth < 4 && inner.canConvert<QDBusVariant>(); ++depth)
        inner = qvariant_cast<QDBusVariant>(inner).variant();
    bool number = false;
    const unsigned scheme = inner.toUInt(&number);
    if (!number || scheme > 2)
        return std::nullopt;
    return static_cast<Scheme>(scheme);
}

} // namespace vexel
