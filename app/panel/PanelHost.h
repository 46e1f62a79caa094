#pragma once

#include <QDBusServiceWatcher>
#include <QObject>

namespace vexel {

// Whether the desktop's panel has a status area for Vexel's items, followed
// as it changes: the StatusNotifierWatcher coming and going on the session
// bus (a panel that starts after Vexel at login, a panel restarted) and a
// panel registering with it as the host that shows the items. Every question
// to the bus is asynchronous, so the window never waits for it.
class PanelHost final : public QObject {
    Q_OBJECT

public:
    explicit PanelHost(QObject* parent = nullptr);

    // Starts following; the first answer comes as `changed`.
    void start();
    [[nodiscard]] bool present() const { return m_present; }

signals:
    void changed(bool present);

private slots:
    // Asks the watcher whether a host has registered.
    void ask();

private:
    void answer(bool present);

    QDBusServiceWatcher m_watcher;
    bool m_present = false;
    bool m_answered = false;
};

} // namespace vexel
