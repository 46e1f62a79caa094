#include "VexelCommands.h"

#include "MainWindow.h"
#include "model/AppModel.h"

#include <QAction>
#include <QMenuBar>

namespace vexel {

VexelCommands::VexelCommands(MainWindow& window, AppModel& model, std::function<void()> openSettings)
    : QObject(&window)
{
    m_bar = new QMenuBar(&window);
    m_bar->setFont(Look::font(12));
    auto* vexel = m_bar->addMenu(QStringLiteral("Vexel"));
    auto* settings = vexel->addAction(QStringLiteral("Settings…"));
    settings->setShortcut(QKeySequence::Preferences);
    settings->setShortcutContext(Qt::ApplicationShortcut);
    connect(settings, &QAction::triggered, this, [openSettings = std::move(openSettings)] { openSettings(); });

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

QList<QAction*> VexelCommands::goActions() const
{
    QList<QAction*> actions;
    for (auto* action : m_bar->actions().at(1)->menu()->actions())
        if (!action->isSeparator())
            actions << action;
    return actions;
}

} // namespace vexel
