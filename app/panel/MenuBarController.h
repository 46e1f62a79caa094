#pragma once

#include "Appearance.h"
#include "panel/MenuDropdown.h"
#include "settings/MenuItemConfig.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <vector>

class QMenu;
class QSystemTrayIcon;

namespace vexel {

class AppModel;

// The readings in the panel: one status item per enabled reading, in the
// settings' order, each showing its picture and opening its dropdown when
// clicked. Follows the model: a new frame updates the pictures, a change of
// the item list rebuilds the items.
class MenuBarController final : public QObject {
public:
    // `panel` is the panel's own look (its text colour is the pictures');
    // the dropdowns take the window's palette.
    MenuBarController(AppModel& model, Appearance panel, MenuDropdown::Actions actions);
    ~MenuBarController() override;

    // Subscribes to the model and puts the enabled items in the panel (a
    // status area that appeared, or came back: its items are made anew).
    void start();
    // Takes every item out (the status area went away) until the next start.
    void stop();
    // Removes the items no longer enabled and adds the newly enabled; when
    // the order changed, re-creates them all so the panel shows the new order.
    void rebuild();
    // Every item's picture, tooltip and menu from the latest frame.
    void update();
    // An item was clicked: opens its dropdown, or closes the one open.
    void clicked(MenuItemKind kind);
    // The panel turned light or dark: the pictures are drawn anew for it.
    void setPanel(Appearance panel);

    // The kinds in the order their items were created.
    [[nodiscard]] const std::vector<MenuItemKind>& order() const { return m_order; }
    [[nodiscard]] QSystemTrayIcon* item(MenuItemKind kind) const;
    [[nodiscard]] MenuDropdown* dropdown() const { return m_dropdown; }
    // How many times the items were created anew (all of them at once).
    [[nodiscard]] int recreations() const { return m_recreations; }

private:
    void add(MenuItemKind kind);
    void removeAll();

    AppModel& m_model;
    Appearance m_panel;
    MenuDropdown::Actions m_actions;
    std::map<MenuItemKind, QSystemTrayIcon*> m_items;
    std::map<MenuItemKind, QMenu*> m_menus;
    std::vector<MenuItemKind> m_order;
    QPointer<MenuDropdown> m_dropdown;
    MenuItemKind m_lastClosed = MenuItemKind::cpu;
    qint64 m_closedAt = 0;
    int m_recreations = 0;
    QMetaObject::Connection m_following;
};

} // namespace vexel
