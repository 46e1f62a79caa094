#include "DesktopApp.h"

#include "Appearance.h"
#include "MainWindow.h"
#include "recorder/HeadlessRecorder.h"

#include <QApplication>
#include <QStyleHints>

#include <string_view>

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
    // Recording without a desktop needs no Qt at all.
    for (int i = 1; i < argc; ++i)
        if (std::string_view(argv[i]) == "--headless")
            return runHeadlessRecorder();
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
