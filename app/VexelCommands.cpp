#include "VexelCommands.h"

#include "MainWindow.h"
#include "QuitVexel.h"
#include "model/AppModel.h"

#include <QAction>
#include <QMenuBar>

namespace vexel {

namespace {

// `own` on every desktop, and the desktop's own key for the command too
// where it has one: Qt knows none for preferences outside macOS and KDE
// (Ctrl+Shift+,), and none at all on some platforms.
QList<QKeySequence> keys(const QKeySequence& own, QKeySequence::StandardKey standard)
{
    QList<QKeySequence> all{own};
    for (const auto& key : QKeySequence::keyBindings(standard))
        if (!all.contains(key))
            all << key;
    return all;
}

} // namespace

VexelCommands::VexelCommands(MainWindow& window, AppModel& model, std::function<void()> openSettings)
    : QObject(&window)
{
    m_bar = new QMenuBar(&window);
    m_bar->setFont(Look::font(12));
    auto* vexel = m_bar->addMenu(QStringLiteral("Vexel"));
    auto* settings = vexel->addAction(QStringLiteral("Settings…"));
    settings->setShortcuts(keys(QKeySequence(Qt::CTRL | Qt::Key_Comma), QKeySequence::Preferences));
    settings->setShortcutContext(Qt::ApplicationShortcut);
    connect(settings, &QAction::triggered, this, [openSettings = std::move(openSettings)] { openSettings(); });
    vexel->addSeparator();
    auto* quitAction = vexel->addAction(QStringLiteral("Quit Vexel"));
    quitAction->setShortcuts(keys(QKeySequence(Qt::CTRL | Qt::Key_Q), QKeySequence::Quit));
    quitAction->setShortcutContext(Qt::ApplicationShortcut);
    connect(quitAction, &QAction::triggered, this, &quitVexel);

    auto* go = m_bar->addMenu(QStringLiteral("Go"));
    for (const auto route : allRoutes) {
        auto* action = go->addAction(QString::fromStdString(title(route)));
        action->setShortcut(QKeySequence(QString::fromStdString(shortcut(route))));
        connect(action, &QAction::triggered, &window, [&window, route] { window.showRoute(route); });
    }
    go->addSeparator();
    auto* quit = go->addAction(QStringLiteral("Quit Selected App…"));
    connect(quit, &QAction::triggered, &model, &AppModel::quitSelected);
    auto* open = go->addAction(QStringLiteral("Open Vexel Window"));
    connect(open, &QAction::triggered, &window, [&window] {
        window.showNormal();
        window.raise();
        window.activateWindow();
    });
    window.setMenuBar(m_bar);
}

QList<QAction*> VexelCommands::vexelActions() const
{
    return entriesOf(0);
}

QList<QAction*> VexelCommands::goActions() const
{
    return entriesOf(1);
}

QList<QAction*> VexelCommands::entriesOf(int menu) const
{
    QList<QAction*> actions;
    for (auto* action : m_bar->actions().at(menu)->menu()->actions())
        if (!action->isSeparator())
            actions << action;
    return actions;
}

} // namespace vexel
