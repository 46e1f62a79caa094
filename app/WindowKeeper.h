#pragma once

#include <QObject>

class QWidget;

namespace vexel {

class AppModel;

// Keeps the window the way back to Vexel. While the panel carries no
// readings (no status area on this desktop, or no panel items), closing the
// window minimises it to the taskbar, where Vexel goes on recording at the
// hidden cadence, and a start with --hidden opens it minimised; Ctrl+Q quits.
// Tells the model whether the window is in view, which sets the cadence.
class WindowKeeper final : public QObject {
public:
    struct Panel {
        bool host = false; // a status area (StatusNotifierWatcher) runs on this desktop
        bool carriesReadings = false; // and Vexel's items are in it
    };

    WindowKeeper(QWidget& window, AppModel& model, Panel panel);

    // The panel's items come and go with the settings.
    void setCarriesReadings(bool carries) { m_panel.carriesReadings = carries; }

    // Shows the window, or with `hidden` leaves it where the readings went.
    void showAtStart(bool hidden);

    // Said once, in the window, when there is no status area for the readings.
    static const char* const noPanelText;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followVisibility();

    QWidget& m_window;
    AppModel& m_model;
    Panel m_panel;
};

} // namespace vexel
