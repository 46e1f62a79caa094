#include "WindowKeeper.h"

#include "model/AppModel.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QShortcut>
#include <QWidget>

namespace vexel {

const char* const WindowKeeper::noPanelText
    = "There is no status area in this desktop's panel, so Vexel's readings stay in this window. Closing it keeps "
      "Vexel recording in the taskbar; Ctrl+Q quits. On GNOME, the AppIndicator extension adds a status area.";

WindowKeeper::WindowKeeper(QWidget& window, AppModel& model, Panel panel)
    : m_window(window)
    , m_model(model)
    , m_panel(panel)
{
    window.installEventFilter(this);
    auto* quit = new QShortcut(QKeySequence::Quit, &window);
    // exit, not quit: quit would ask this window to close first, and closing only minimises it.
    connect(quit, &QShortcut::activated, qApp, [] { QCoreApplication::exit(0); });
    if (!m_panel.host)
        m_model.tell(noPanelText);
}

void WindowKeeper::showAtStart(bool hidden)
{
    if (!hidden)
        m_window.show();
    else if (!m_panel.carriesReadings)
        m_window.showMinimized();
}

bool WindowKeeper::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Close:
        if (m_panel.carriesReadings)
            return false;
        // A closed window would leave a process with no way back to it.
        event->ignore();
        m_window.showMinimized();
        return true;
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange: followVisibility(); return false;
    default: return false;
    }
}

void WindowKeeper::followVisibility()
{
    m_model.setWindowVisible(m_window.isVisible() && !m_window.isMinimized());
}

} // namespace vexel
