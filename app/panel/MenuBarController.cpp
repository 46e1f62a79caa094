#include "panel/MenuBarController.h"

#include "Logging.h"
#include "model/AppModel.h"
#include "panel/MenuGlyph.h"
#include "panel/MenuReading.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QCursor>
#include <QDateTime>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QSystemTrayIcon>

#include <algorithm>

namespace vexel {

namespace {

// A popup closes itself when the panel is pressed; the click that follows on
// the same item within this long is that press, the second click of a toggle.
constexpr qint64 sameClickMilliseconds = 400;

std::vector<MenuItemKind> enabledKinds(const VexelSettings& settings)
{
    std::vector<MenuItemKind> kinds;
    for (const auto& item : settings.menuItems)
        if (item.enabled)
            kinds.push_back(item.kind);
    return kinds;
}

// The reading in words for the tooltip and the item's menu: "Network 1.5M
// down, 120K up".
QString spoken(const MenuReading& reading)
{
    const QString name = Vexel::words(title(reading.kind));
    if (!reading.text2)
        return Vexel::tr("%1 %2", "a reading's name and its value: CPU 15%").arg(name, qs(reading.text));
    if (reading.kind == MenuItemKind::disk)
        return Vexel::tr("%1 %2 read, %3 written").arg(name, qs(reading.text), qs(*reading.text2));
    return Vexel::tr("%1 %2 down, %3 up").arg(name, qs(reading.text), qs(*reading.text2));
}

} // namespace

MenuBarController::MenuBarController(AppModel& model, Appearance panel, MenuDropdown::Actions actions)
    : m_model(model)
    , m_panel(panel)
    , m_actions(std::move(actions))
{
}

MenuBarController::~MenuBarController()
{
    if (m_dropdown)
        m_dropdown->close();
    removeAll();
}

void MenuBarController::setPanel(Appearance panel)
{
    if (panel == m_panel)
        return;
    m_panel = panel;
    update();
}

void MenuBarController::start()
{
    stop();
    m_following = connect(&m_model, &AppModel::changed, this, [this](unsigned what) {
        if (what & AppModel::settingsChanged)
            rebuild();
        else if (what & AppModel::frameChanged)
            update();
    });
    rebuild();
    qCInfo(panelLog) << "items made:" << m_order.size();
}

void MenuBarController::stop()
{
    disconnect(m_following);
    if (m_dropdown)
        m_dropdown->close();
    removeAll();
}

void MenuBarController::rebuild()
{
    const auto wanted = enabledKinds(m_model.settings());
    std::vector<MenuItemKind> kept;
    for (const auto kind : m_order)
        if (std::ranges::find(wanted, kind) != wanted.end())
            kept.push_back(kind);
    // New items go to the panel's end: the kept ones must lead the wanted order.
    const bool keptLead
        = std::equal(kept.begin(), kept.end(), wanted.begin(), wanted.begin() + static_cast<long>(kept.size()));
    if (!keptLead) {
        removeAll();
        kept.clear();
        ++m_recreations;
    }
    for (const auto kind : m_order)
        if (std::ranges::find(wanted, kind) == wanted.end()) {
            delete m_menus[kind];
            delete m_items[kind];
            m_items.erase(kind);
            m_menus.erase(kind);
        }
    m_order = kept;
    for (size_t i = kept.size(); i < wanted.size(); ++i)
        add(wanted[i]);
    update();
}

void MenuBarController::add(MenuItemKind kind)
{
    auto* item = new QSystemTrayIcon(this);
    auto* menu = new QMenu;
    menu->addAction(QString())->setEnabled(false); // the reading, kept up to date
    menu->addSeparator();
    connect(
        menu->addAction(Vexel::tr("Open Vexel Window")), &QAction::triggered, this, [this] { m_actions.openWindow(); });
    connect(menu->addAction(PageTexts::panelSettings(m_model.platform)), &QAction::triggered, this,
        [this] { m_actions.openPanelSettings(); });
    menu->addSeparator();
    connect(menu->addAction(Vexel::tr("Quit Vexel")), &QAction::triggered, this, [this] { m_actions.quit(); });
    item->setContextMenu(menu);
    connect(item, &QSystemTrayIcon::activated, this, [this, kind](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            clicked(kind);
    });
    m_items[kind] = item;
    m_menus[kind] = menu;
    m_order.push_back(kind);
    const MenuItemConfig config{kind, true, MenuItemStyle::value};
    item->setIcon(MenuGlyph::icon(menuReading(m_model, config), m_panel));
    item->show();
}

void MenuBarController::removeAll()
{
    for (auto& [kind, item] : m_items)
        delete item;
    for (auto& [kind, menu] : m_menus)
        delete menu;
    m_items.clear();
    m_menus.clear();
    m_order.clear();
}

void MenuBarController::update()
{
    for (const auto& config : m_model.settings().menuItems) {
        const auto found = m_items.find(config.kind);
        if (found == m_items.end())
            continue;
        const MenuReading reading = menuReading(m_model, config);
        found->second->setIcon(MenuGlyph::icon(reading, m_panel));
        const QString said = spoken(reading);
        found->second->setToolTip(said);
        m_menus[config.kind]->actions().front()->setText(said);
    }
    if (m_dropdown)
        m_dropdown->showModel(m_model);
}

void MenuBarController::clicked(MenuItemKind kind)
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (m_dropdown) {
        m_dropdown->close();
        return;
    }
    if (kind == m_lastClosed && now - m_closedAt < sameClickMilliseconds)
        return; // the press that closed it was this item's second click
    auto* dropdown = new MenuDropdown(m_model, kind, m_actions);
    connect(dropdown, &QObject::destroyed, this, [this, kind] {
        m_lastClosed = kind;
        m_closedAt = QDateTime::currentMSecsSinceEpoch();
    });
    m_dropdown = dropdown;
    if (MenuDropdown::placedByCompositor()) {
        qCInfo(panelLog) << "dropdown" << rawValue(kind).c_str() << "opens as a window the compositor places";
    } else {
        // Status items carry no position: the dropdown opens at the pointer, kept on its screen.
        QPoint at = QCursor::pos();
        if (const auto* screen = QGuiApplication::screenAt(at)) {
            const QRect room = screen->availableGeometry();
            at.setX(std::clamp(at.x() - dropdown->width() / 2, room.left(), room.right() - dropdown->width()));
            at.setY(std::clamp(at.y(), room.top(), room.bottom() - dropdown->height()));
        }
        dropdown->move(at);
        qCInfo(panelLog) << "dropdown" << rawValue(kind).c_str() << "opens at" << at;
    }
    dropdown->show();
    m_model.refresh(false); // it opens on fresh figures
}

QSystemTrayIcon* MenuBarController::item(MenuItemKind kind) const
{
    const auto found = m_items.find(kind);
    return found == m_items.end() ? nullptr : found->second;
}

} // namespace vexel
