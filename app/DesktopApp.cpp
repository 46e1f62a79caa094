#include "DesktopApp.h"

#include "Appearance.h"
#include "MainWindow.h"

#include <QApplication>
#include <QStyleHints>

namespace vexel {

namespace {

Appearance systemAppearance()
{
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Window).lightness() < 128 ? Appearance::dark : Appearance::light;
}

} // namespace

int runDesktopApp(int& argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vexel"));
    QApplication::setDesktopFileName(QStringLiteral("dev.vexel.Vexel"));
    QApplication::setStyle(QStringLiteral("Fusion"));
    Look::installFont();
    MainWindow window(systemAppearance());
    window.show();
    return QApplication::exec();
}

} // namespace vexel
