#pragma once

#include <QObject>

#include <functional>

class QAction;
class QMenuBar;

namespace vexel {

class AppModel;
class MainWindow;

// The app's commands in the window's menu bar: under "Vexel", the settings
// (Ctrl+,) and "Quit Vexel" (Ctrl+Q); under "Go", every route with its
// shortcut, a divider, "Find App…" (Ctrl+F), "Quit Selected App…" and "Open
// Vexel Window". Every menu and entry has its mnemonic.
class VexelCommands final : public QObject {
public:
    VexelCommands(MainWindow& window, AppModel& model, std::function<void()> openSettings);

    // The "Vexel" menu's entries: the settings, then quitting.
    [[nodiscard]] QList<QAction*> vexelActions() const;
    // The "Go" menu's entries, dividers left out: the routes, then the three commands.
    [[nodiscard]] QList<QAction*> goActions() const;

private:
    // The entries of the bar's `menu`th menu, dividers left out.
    [[nodiscard]] QList<QAction*> entriesOf(int menu) const;

    QMenuBar* m_bar = nullptr;
};

} // namespace vexel
