#include "actions/LiveActions.h"

#include <QClipboard>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

#include <cerrno>
#include <csignal>
#include <sys/types.h>

namespace vexel {

namespace {

constexpr const char* fileManager = "org.freedesktop.FileManager1";

} // namespace

bool LiveActions::quit(const AppGroup& app, bool force)
{
    if (!force)
        return app.mainPID && signal(*app.mainPID, SIGTERM);
    bool any = false;
    for (const auto& row : app.processes)
        any = signal(row.pid, SIGKILL) || any;
    return any;
}

bool LiveActions::signal(int32_t pid, int32_t sig)
{
    return pid > 0 && ::kill(pid, sig) == 0;
}

bool LiveActions::isAlive(int32_t pid)
{
    // EPERM: it exists, it is just not ours to signal.
    return pid > 0 && (::kill(pid, 0) == 0 || errno == EPERM);
}

void LiveActions::reveal(const std::string& path)
{
    const QString file = QString::fromStdString(path);
    auto bus = QDBusConnection::sessionBus();
    if (bus.isConnected() && bus.interface()->isServiceRegistered(QString::fromLatin1(fileManager))) {
        auto call = QDBusMessage::createMethodCall(QString::fromLatin1(fileManager),
            QStringLiteral("/org/freedesktop/FileManager1"), QString::fromLatin1(fileManager),
            QStringLiteral("ShowItems"));
        call << QStringList{QUrl::fromLocalFile(file).toString()} << QString();
        if (bus.call(call, QDBus::Block, 3000).type() == QDBusMessage::ReplyMessage)
            return;
    }
    // No file manager on the bus: open the folder that holds it.
    const QFileInfo info(file);
    QDesktopServices::openUrl(QUrl::fromLocalFile(info.isDir() ? info.absoluteFilePath() : info.absolutePath()));
}

void LiveActions::copy(const std::string& text)
{
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

} // namespace vexel
