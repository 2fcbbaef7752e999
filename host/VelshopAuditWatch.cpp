#include "host/VelshopAuditWatch.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

constexpr int QUIET_MILLISECONDS = 100; ///< behind the last change, before the documents are looked at

} // namespace

VelshopAuditWatch::VelshopAuditWatch(const QStringList& theFolders, const Files& theFiles,
                                     const std::function<void()>& theCall)
    : myFolders(theFolders), myFiles(theFiles), myCall(theCall), myState(state())
{
    myTimer.setSingleShot(true);
    myTimer.setInterval(QUIET_MILLISECONDS);
    const auto wait = [this](const QString&) { myTimer.start(); };
    QObject::connect(&myWatcher, &QFileSystemWatcher::fileChanged, &myTimer, wait);
    QObject::connect(&myWatcher, &QFileSystemWatcher::directoryChanged, &myTimer, wait);
    QObject::connect(&myTimer, &QTimer::timeout, &myTimer, [this] { callIfChanged(); });
    watchAgain();
}

/// A file that was replaced is no longer watched.
void VelshopAuditWatch::watchAgain()
{
    QStringList paths;
    for (const QString& path : myFolders + myFiles())
        if (QFileInfo::exists(path) && !myWatcher.files().contains(path) && !myWatcher.directories().contains(path))
            paths.append(path);
    if (!paths.isEmpty())
        myWatcher.addPaths(paths);
}

/// A folder changes for other reasons, too: a page may be written into it.
void VelshopAuditWatch::callIfChanged()
{
    watchAgain();
    const QString now = state();
    if (now == myState)
        return;
    myState = now;
    myCall();
}

/// Names, times and sizes of the documents.
QString VelshopAuditWatch::state() const
{
    QStringList parts;
    for (const QString& path : myFiles()) {
        const QFileInfo file(path);
        parts.append(path);
        parts.append(QString::number(file.lastModified().toMSecsSinceEpoch()));
        parts.append(QString::number(file.size()));
    }
    return parts.join(QLatin1Char('|'));
}
