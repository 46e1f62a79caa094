#pragma once

#include <QDBusVirtualObject>
#include <QObject>

namespace vexel {

// One Vexel per user session. The first process owns the name
// dev.vexel.Vexel on the session bus and serves the desktop's
// org.freedesktop.Application there: Activate shows its window, and the
// action "quit" ends it. A later launch finds the name taken, asks the first
// to show itself, and ends. Without a session bus every launch runs alone.
class SingleInstance final : public QDBusVirtualObject {
    Q_OBJECT

public:
    enum class Claim {
        first, // this process is Vexel for the session
        another, // a Vexel runs already
        noBus, // no session bus: nothing to share
    };

    static const QString serviceName;
    static const QString objectPath;

    explicit SingleInstance(QObject* parent = nullptr);

    // Serves the interface and takes the name (at start, before any window).
    Claim claim();

    // Asks the Vexel that owns the name to show its window, passing on the
    // launcher's activation token so the desktop lets it come forward;
    // whether it answered. The second launch's last act: it may wait.
    static bool activateRunning();
    // Asks the Vexel running in this session to quit, as the desktop entry's
    // Quit action does; false when none answered.
    static bool quitRunning();

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;
    [[nodiscard]] QString introspect(const QString& path) const override;

signals:
    // The window is wanted, with the token of the launch that asked, if any.
    void activated(const QString& activationToken);
    void quitRequested();
};

} // namespace vexel
