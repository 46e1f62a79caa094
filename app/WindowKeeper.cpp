#include "WindowKeeper.h"

#include "model/AppModel.h"
#include "texts/Vexel.h"

#include <QCloseEvent>
#include <QWidget>

namespace vexel {

QString WindowKeeper::noPanelText()
{
    return Vexel::tr("There is no status area in this desktop's panel, so Vexel's readings stay in this window. "
                     "Closing it keeps Vexel recording in the taskbar; Ctrl+Q quits. On GNOME, the AppIndicator "
                     "extension adds a status area.");
}

WindowKeeper::WindowKeeper(QWidget& window, AppModel& model)
    : m_window(window)
    , m_model(model)
{
    window.installEventFilter(this);
}

void WindowKeeper::setPanel(Panel panel)
{
    m_panel = panel;
    if (!panel.host && !m_told) {
        m_told = true;
        m_model.tell(noPanelText(), true); // the one way back to the window: it stays until read
    }
    if (!panel.carriesReadings && m_window.isHidden() && m_outOfTheWay) {
        // Hidden with the items as the way back, and the items went: back to the taskbar.
        m_window.showMinimized();
    } else if (panel.carriesReadings && m_outOfTheWay && m_window.isMinimized()) {
        // Started at login before the panel came: the items are the way back now.
        m_window.hide();
    }
}

void WindowKeeper::showAtStart(bool hidden)
{
    if (!hidden) {
        m_window.show();
        return;
    }
    m_outOfTheWay = true;
    if (!m_panel.carriesReadings)
        m_window.showMinimized();
}

bool WindowKeeper::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Close:
        if (m_panel.carriesReadings) {
            m_outOfTheWay = true; // hidden: the panel's items lead back
            return false;
        }
        // A closed window would leave a process with no way back to it.
        event->ignore();
        m_window.showMinimized();
        return true;
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        if (m_window.isVisible() && !m_window.isMinimized())
            m_outOfTheWay = false; // in view: the user's to place from now on
        followVisibility();
        return false;
    default: return false;
    }
}

void WindowKeeper::followVisibility()
{
    m_model.setWindowVisible(m_window.isVisible() && !m_window.isMinimized());
}

} // namespace vexel
