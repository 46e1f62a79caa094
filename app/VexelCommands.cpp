#include "VexelCommands.h"

#include "MainWindow.h"
#include "QuitVexel.h"
#include "model/AppModel.h"
#include "texts/Vexel.h"

#include <QAction>
#include <QMenuBar>

#include <array>

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

// An entry's text with its mnemonic on the first `key` (Alt and the letter
// opens or picks it), and any ampersand of the text itself shown as one.
QString withMnemonic(QString text, QChar key)
{
    text.replace(QStringLiteral("&"), QStringLiteral("&&"));
    const auto at = text.indexOf(key, 0, Qt::CaseInsensitive);
    if (at >= 0)
        text.insert(at, QChar('&'));
    return text;
}

// Each route's mnemonic in the Go menu, in the sidebar's order: distinct letters.
constexpr std::array<char, 10> routeKeys{'O', 'A', 'C', 'M', 'D', 'N', 'G', 'P', 'H', 'V'};

} // namespace

VexelCommands::VexelCommands(MainWindow& window, AppModel& model, std::function<void()> openSettings)
    : QObject(&window)
{
    m_bar = new QMenuBar(&window);
    m_bar->setFont(Look::font(12));
    auto* vexel = m_bar->addMenu(Vexel::tr("&Vexel"));
    auto* settings = vexel->addAction(Vexel::tr("&Settings…"));
    settings->setShortcuts(keys(QKeySequence(Qt::CTRL | Qt::Key_Comma), QKeySequence::Preferences));
    settings->setShortcutContext(Qt::ApplicationShortcut);
    connect(settings, &QAction::triggered, this, [openSettings = std::move(openSettings)] { openSettings(); });
    vexel->addSeparator();
    auto* quitAction = vexel->addAction(Vexel::tr("&Quit Vexel"));
    quitAction->setShortcuts(keys(QKeySequence(Qt::CTRL | Qt::Key_Q), QKeySequence::Quit));
    quitAction->setShortcutContext(Qt::ApplicationShortcut);
    connect(quitAction, &QAction::triggered, this, &quitVexel);

    auto* go = m_bar->addMenu(Vexel::tr("&Go"));
    for (const auto route : allRoutes) {
        auto* action = go->addAction(withMnemonic(title(route), QChar(routeKeys.at(static_cast<size_t>(route)))));
        action->setShortcut(QKeySequence(QString::fromStdString(shortcut(route))));
        connect(action, &QAction::triggered, &window, [&window, route] { window.showRoute(route); });
    }
    go->addSeparator();
    auto* find = go->addAction(Vexel::tr("&Find App…"));
    find->setShortcuts(keys(QKeySequence(Qt::CTRL | Qt::Key_F), QKeySequence::Find));
    connect(find, &QAction::triggered, &window, &MainWindow::focusSearch);
    auto* quit = go->addAction(Vexel::tr("&Quit Selected App…"));
    connect(quit, &QAction::triggered, &model, &AppModel::quitSelected);
    auto* open = go->addAction(Vexel::tr("Open Vexel &Window"));
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
