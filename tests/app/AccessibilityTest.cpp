// What a screen reader finds: every control and painted view of every page,
// of the dropdown and of every settings tab has a name, and every painted
// view says what it shows now; the keys a desktop user reaches for work.

#include "DemoModel.h"
#include "MainWindow.h"
#include "VexelCommands.h"
#include "pages/AppsPage.h"
#include "panel/MenuDropdown.h"
#include "settings/SettingsWindow.h"

#include <QAccessible>
#include <QAction>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

#include <set>

using namespace vexel;

namespace {

// Roles a user acts on or reads a value from: each needs a name to be found.
const std::set<QAccessible::Role> namedRoles{QAccessible::Button, QAccessible::CheckBox, QAccessible::RadioButton,
    QAccessible::ComboBox, QAccessible::SpinBox, QAccessible::EditableText, QAccessible::Slider, QAccessible::PageTab,
    QAccessible::ListItem, QAccessible::MenuItem, QAccessible::Chart, QAccessible::Row, QAccessible::Cell,
    QAccessible::Link, QAccessible::ButtonMenu, QAccessible::ButtonDropDown};

struct Findings {
    QStringList nameless;
    QStringList charts; // "name: value"
};

void walk(QAccessibleInterface* node, const QString& where, Findings& found, int depth = 0)
{
    if (node == nullptr || depth > 64 || node->state().invisible)
        return;
    const QString name = node->text(QAccessible::Name).trimmed();
    const QString what = where + " "
        + QString::fromLatin1(node->object() ? node->object()->metaObject()->className() : "?") + " (role "
        + QString::number(node->role()) + ")";
    if (namedRoles.contains(node->role()) && name.isEmpty())
        found.nameless << what;
    if (node->role() == QAccessible::Chart) {
        const QString value = node->text(QAccessible::Value).trimmed();
        if (value.isEmpty())
            found.nameless << what + " without a value";
        found.charts << name + ": " + value;
    }
    for (int i = 0; i < node->childCount(); ++i)
        walk(node->child(i), where, found, depth + 1);
}

} // namespace

TEST(Accessibility, EveryElementOfEveryPageTabAndDropdownHasANameAndEveryChartAValue)
{
    const auto demo = vexel::testing::readDemoModel(Platform::linux, 3);
    auto& model = *demo->model;
    MainWindow window;
    window.bind(model);
    const VexelCommands commands(window, model, [] {});
    window.show();
    Findings found;
    for (const auto route : allRoutes) {
        window.showRoute(route);
        demo->settle();
        walk(QAccessible::queryAccessibleInterface(&window), QString::fromStdString(identifier(route)), found);
    }
    SettingsWindow settings({"/nonexistent/vexel", "/nonexistent", [] { return std::nullopt; }});
    settings.bind(model);
    settings.show();
    for (const auto tab : {SettingsWindow::Tab::general, SettingsWindow::Tab::panel, SettingsWindow::Tab::alerts,
             SettingsWindow::Tab::history, SettingsWindow::Tab::developer}) {
        settings.showTab(tab);
        walk(QAccessible::queryAccessibleInterface(&settings), QStringLiteral("settings"), found);
    }
    MenuDropdown dropdown(model, MenuItemKind::network, {[] {}, [] {}, [] {}});
    dropdown.show();
    walk(QAccessible::queryAccessibleInterface(&dropdown), QStringLiteral("dropdown"), found);

    EXPECT_TRUE(found.nameless.isEmpty()) << found.nameless.join('\n').toStdString();
    // The dials, traces, bars, scale and history charts, each read out.
    EXPECT_GE(found.charts.size(), 20) << found.charts.join('\n').toStdString();
    for (const auto& chart : found.charts)
        EXPECT_FALSE(chart.contains('%')) << chart.toStdString() << ": read out as words";
}

// Ctrl+F finds an app from any page, and every
// menu and entry has a distinct mnemonic within its menu.
TEST(Accessibility, KeysForSearchSettingsAndMenus)
{
    const auto demo = vexel::testing::readDemoModel(Platform::linux, 1);
    MainWindow window;
    window.bind(*demo->model);
    const VexelCommands commands(window, *demo->model, [] {});
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    window.showRoute(Route::disk);
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(window.currentRoute(), Route::apps);
    auto* search = static_cast<AppsPage*>(window.page(Route::apps))->searchField();
    EXPECT_TRUE(QTest::qWaitFor([search] { return search->hasFocus(); }, 2000));

    for (const auto& menu : {commands.vexelActions(), commands.goActions()}) {
        QSet<QChar> keys;
        for (const auto* action : menu) {
            const QString text = QString(action->text()).replace(QStringLiteral("&&"), QString());
            const auto at = text.indexOf('&');
            ASSERT_GE(at, 0) << action->text().toStdString() << " has no mnemonic";
            EXPECT_FALSE(keys.contains(text.at(at + 1).toLower())) << action->text().toStdString();
            keys.insert(text.at(at + 1).toLower());
        }
    }
}
