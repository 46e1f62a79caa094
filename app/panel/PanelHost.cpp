#include "panel/PanelHost.h"

#include "Logging.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace vexel {

namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
constexpr int askMilliseconds = 5000;

} // namespace

PanelHost::PanelHost(QObject* parent)
    : QObject(parent)
    , m_watcher(watcherService, QDBusConnection::sessionBus(),
          QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration)
{
}

void PanelHost::start()
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        qCInfo(panelLog) << "no session bus: no status area";
        answer(false);
        return;
    }
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] {
        qCInfo(panelLog) << "a status notifier watcher appeared";
        ask();
    });
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        qCInfo(panelLog) << "the status notifier watcher went away";
        answer(false);
    });
    // A panel that registers as the host after the watcher started.
    bus.connect(
        watcherService, watcherPath, watcherService, QStringLiteral("StatusNotifierHostRegistered"), this, SLOT(ask()));
    bus.connect(watcherService, watcherPath, watcherService, QStringLiteral("StatusNotifierHostUnregistered"), this,
        SLOT(ask()));
    ask();
}

void PanelHost::ask()
{
    auto question = QDBusMessage::createMethodCall(
        watcherService, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << watcherService << QStringLiteral("IsStatusNotifierHostRegistered");
    auto* pending
        = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question, askMilliseconds), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending] {
        pending->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *pending;
        // No watcher at all answers with an error: no status area.
        answer(!reply.isError() && reply.value().variant().toBool());
    });
}

void PanelHost::answer(bool present)
{
    if (m_answered && present == m_present)
        return;
    m_answered = true;
    m_present = present;
    qCInfo(panelLog) << (present ? "a status area shows Vexel's items" : "no status area for Vexel's items");
    emit changed(present);
}

} // namespace vexel
