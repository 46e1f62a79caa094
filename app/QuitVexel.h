#pragma once

#include <QCoreApplication>

namespace vexel {

// Ends Vexel: from the menu, a panel item, the desktop's Quit action or a
// stop signal. exit, not quit: quit would first ask the windows to close, and
// the window only hides or minimises while it is the way back.
inline void quitVexel()
{
    QCoreApplication::exit(0);
}

} // namespace vexel
