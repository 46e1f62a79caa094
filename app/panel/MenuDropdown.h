#pragma once

#include "Appearance.h"
#include "settings/MenuItemConfig.h"

#include <QFrame>

#include <functional>

class QLabel;

namespace vexel {

class AppModel;
class FigureRows;
class PaintedView;
class TopApps;

// The panel item's dropdown: the reading as a dial, its figures, the last
// few minutes, the apps behind it (or why there are none), and the way to
// the window and to the panel's settings.
class MenuDropdown final : public QFrame {
public:
    struct Actions {
        std::function<void()> openWindow;
        std::function<void()> openPanelSettings;
        std::function<void()> quit; // from an item's menu: Vexel ends, window and all
    };

    MenuDropdown(const AppModel& model, MenuItemKind kind, Actions actions);

    [[nodiscard]] MenuItemKind kind() const { return m_kind; }
    // Shows the model's figures now (it opens on fresh ones).
    void showModel(const AppModel& model);

    [[nodiscard]] QStringList readouts() const;
    [[nodiscard]] QStringList appRows() const;
    [[nodiscard]] QString note() const;

private:
    MenuItemKind m_kind;
    PaintedView* m_dial = nullptr;
    FigureRows* m_readouts = nullptr;
    PaintedView* m_trace = nullptr;
    QLabel* m_traceCaption = nullptr;
    TopApps* m_apps = nullptr;
    QLabel* m_note = nullptr;
};

} // namespace vexel
