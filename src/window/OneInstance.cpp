#include "window/OneInstance.h"

#include <QCoreApplication>
#include <QFile>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <QSysInfo>
#endif

namespace gatewise::window {

namespace {

/// The name by which a lock knows this computer: on Windows not that of the network, which may be longer and
/// in small letters.
QString computerName() {
#ifdef Q_OS_WIN
    return qEnvironmentVariable("COMPUTERNAME");
#else
    return QSysInfo::machineHostName();
#endif
}

} // namespace

OneInstance::OneInstance(const QString& folder)
    : call_(folder + "/gatewise.show"), lock_(folder + "/gatewise.lock") {
    // A program may run for days: only the end of its process makes its lock a stale one.
    lock_.setStaleLockTime(0);
    first_ = lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError || takesOver();
    if (!first_) return;
    QFile::remove(call_);
    watcher_.addPath(folder);
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &watcher_, [this] { answer(); });
}

/// Numbers of processes come again, soon where few programs run: a lock with our own number was left by a
/// program that has ended. The system does not let it be taken away while its owner lives.
bool OneInstance::takesOver() {
    qint64 process = 0;
    QString computer, name;
    return lock_.getLockInfo(&process, &computer, &name) && process == QCoreApplication::applicationPid() &&
           computer == computerName() && lock_.removeStaleLockFile() && lock_.tryLock(0);
}

void OneInstance::callFirst() const {
#ifdef Q_OS_WIN
    // Only the program that the pilot has just started may bring a window to the front, or let another do it.
    AllowSetForegroundWindow(ASFW_ANY);
#endif
    QFile call(call_);
    (void)call.open(QIODevice::WriteOnly);
}

void OneInstance::onCall(std::function<void()> show) {
    show_ = std::move(show);
}

void OneInstance::answer() {
    if (QFile::exists(call_) && QFile::remove(call_) && show_) show_();
}

} // namespace gatewise::window
