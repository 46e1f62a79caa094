#pragma once

#include <QObject>

class QWidget;

namespace vexel {

class AppModel;

// Keeps the window the way back to Vexel. While the panel carries no
// readings (no status area on this desktop, or no panel items), closing the
// window minimises it to the taskbar, where Vexel goes on recording at the
// hidden cadence, and a start with --hidden opens it minimised; with items
// in the panel, closing hides it, and the items are the way back. The panel
// is followed as it changes: when it goes away, a hidden window comes back
// to the taskbar. Tells the model whether the window is in view, which sets
// the cadence.
class WindowKeeper final : public QObject {
public:
    struct Panel {
        bool host = false; // a status area (StatusNotifierWatcher and host) runs on this desktop
        bool carriesReadings = false; // and Vexel's items are in it
    };

    // Until told otherwise the panel carries nothing: the window is the way back.
    WindowKeeper(QWidget& window, AppModel& model);

    // The panel as it is now. The first time there is no status area, the
    // window says once where the readings went.
    void setPanel(Panel panel);
    [[nodiscard]] Panel panel() const { return m_panel; }

    // Shows the window, or with `hidden` leaves it where the readings went.
    void showAtStart(bool hidden);

    // Said once, in the window, when there is no status area for the readings.
    [[nodiscard]] static QString noPanelText();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followVisibility();

    QWidget& m_window;
    AppModel& m_model;
    Panel m_panel;
    bool m_told = false;
    bool m_outOfTheWay = false; // closed into the panel or started --hidden, not brought back since
};

} // namespace vexel
