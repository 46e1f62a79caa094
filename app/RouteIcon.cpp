#include "RouteIcon.h"

#include <QString>

namespace vexel {

QIcon routeIcon(Route route)
{
    const QString name = QString::fromStdString(symbolName(route));
    QIcon own;
    const QString drawing = QStringLiteral(":/sidebar/%1-%2.png").arg(QString::fromStdString(identifier(route)));
    for (const int size : {16, 32})
        own.addFile(drawing.arg(size), QSize(size, size));
    return QIcon::fromTheme(name + QStringLiteral("-symbolic"), QIcon::fromTheme(name, own));
}

} // namespace vexel
