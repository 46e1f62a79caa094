#pragma once

#include <QObject>

#include <functional>

class QAction;
class QMenuBar;

namespace vexel {

class AppModel;
class MainWindow;

// The app's commands in the window's menu bar: under "Go", every route with
// its shortcut, a divider, "Quit Selected App…" and "Open Vexel Window";
// under "Vexel", the settings.
class VexelCommands final : public QObject {
public:
    VexelCommands(MainWindow& window, AppModel& model, std::function<void()> openSettings);

    // The "Go" menu's entries, dividers left out: the routes, then the two commands.
    [[nodiscard]] QList<QAction*> goActions() const;

private:
    QMenuBar* m_bar = nullptr;
};

} // namespace vexel
