#pragma once

// The session bus's status area as a panel sees it, for tests that run in a
// session of their own with Debian's status-notifier-watcher and
// gtk-sni-tray-standalone. Every call is answered while this thread's event
// loop runs: the items asked about may live in this very process.

#include <QDBusMessage>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

namespace vexel::testing {

inline const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");

// A call over the session bus, answered while the event loop runs; an empty
// message when no answer came.
QDBusMessage ask(const QDBusMessage& message);

QVariant property(const QString& service, const QString& path, const QString& interface, const QString& name);
QVariant watcherProperty(const QString& name);
[[nodiscard]] bool watcherRunning();
[[nodiscard]] bool hostRegistered();

// The registered items by their unique bus names, in the order they
// connected (a later connection has a higher number).
QStringList registeredItems();

// Clicks the entry labelled `label` in an item's menu, as the panel does
// when the user picks it; whether there was one to click.
bool clickMenuEntry(const QString& item, const QString& label);

// Waits for `done`, events running, up to 15 seconds.
bool waitFor(const std::function<bool()>& done);

} // namespace vexel::testing
