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
// the window and to the panel's settings. On X11 it is a popup at the
// pointer. A Wayland client can't anchor a popup to a status item (the panel
// draws it) nor place a window itself, so there it is a small window of its
// own that the compositor places, closed by Escape or by leaving it.
class MenuDropdown final : public QFrame {
public:
    struct Actions {
        std::function<void()> openWindow;
        std::function<void()> openPanelSettings;
        std::function<void()> quit; // from an item's menu: Vexel ends, window and all
    };

    MenuDropdown(const AppModel& model, MenuItemKind kind, Actions actions);

    // Whether the compositor places windows (Wayland): then the dropdown is
    // a window of its own, not a popup placed at the pointer.
    [[nodiscard]] static bool placedByCompositor();

    [[nodiscard]] MenuItemKind kind() const { return m_kind; }
    // Shows the model's figures now (it opens on fresh ones).
    void showModel(const AppModel& model);

    [[nodiscard]] QStringList readouts() const;
    [[nodiscard]] QStringList appRows() const;
    [[nodiscard]] QString note() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

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
