#include "actions/LiveActions.h"

#include "BackgroundWork.h"
#include "Logging.h"

#include <QClipboard>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

#include <cerrno>
#include <csignal>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

namespace vexel {

namespace {

constexpr const char* fileManager = "org.freedesktop.FileManager1";
constexpr int fileManagerMilliseconds = 3000;

// Opens the folder that holds `path` (or the folder itself) in whatever
// opens folders; whether it is a folder is looked up away from the window.
void openFolderOf(QObject* context, const QString& path)
{
    inBackground<QString>(
        context,
        [path] {
            const QFileInfo info(path);
            return info.isDir() ? info.absoluteFilePath() : info.absolutePath();
        },
        [](QString folder) { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); });
}

} // namespace

Held LiveActions::hold(int32_t pid)
{
    if (pid <= 0)
        return nullptr;
    const int fd = static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
    if (fd >= 0)
        return std::make_shared<const HeldProcess>(pid, fd);
    if (errno == ESRCH)
        return nullptr; // ended already
    // A kernel without pidfds (before 5.3): the number alone.
    return std::make_shared<const HeldProcess>(pid);
}

bool LiveActions::quit(const AppGroup&, const std::vector<Held>& processes, bool force)
{
    if (!force)
        return !processes.empty() && signal(*processes.front(), SIGTERM);
    bool any = false;
    for (const auto& process : processes)
        any = signal(*process, SIGKILL) || any;
    return any;
}

bool LiveActions::signal(const HeldProcess& process, int32_t sig)
{
    const bool sent = process.fd() >= 0 ? ::syscall(SYS_pidfd_send_signal, process.fd(), sig, nullptr, 0) == 0
                                        : process.pid() > 0 && ::kill(process.pid(), sig) == 0;
    qCInfo(actionsLog) << "signal" << sig << "to process" << process.pid() << (sent ? "sent" : "failed");
    return sent;
}

bool LiveActions::isAlive(const HeldProcess& process)
{
    if (process.fd() >= 0) {
        // A pidfd turns readable when its process ends.
        pollfd ended{process.fd(), POLLIN, 0};
        return ::poll(&ended, 1, 0) == 0;
    }
    // EPERM: it exists, it is just not ours to signal.
    return process.pid() > 0 && (::kill(process.pid(), 0) == 0 || errno == EPERM);
}

void LiveActions::reveal(const std::string& path)
{
    const QString file = QString::fromStdString(path);
    auto call = QDBusMessage::createMethodCall(QString::fromLatin1(fileManager),
        QStringLiteral("/org/freedesktop/FileManager1"), QString::fromLatin1(fileManager), QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(file).toString()} << QString();
    // No file manager on the bus (or no bus): the call fails, and the folder is opened instead.
    auto* answer = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(call, fileManagerMilliseconds), &m_context);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &m_context, [this, answer, file] {
        answer->deleteLater();
        if (answer->isError())
            openFolderOf(&m_context, file);
    });
}

void LiveActions::copy(const std::string& text)
{
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

} // namespace vexel
