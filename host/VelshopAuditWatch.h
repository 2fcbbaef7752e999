#ifndef VELSHOPAUDITWATCH_H
#define VELSHOPAUDITWATCH_H

#include <QFileSystemWatcher>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Calls back whenever a document of a folder was saved, made or taken away, until the program is ended.
class VelshopAuditWatch
{
    Q_DISABLE_COPY(VelshopAuditWatch)

public:
    /// The files that make up the folder's documents, now.
    using Files = std::function<QStringList()>;

    /// Folders are watched as well as files, since many editors write a new file and rename it.
    VelshopAuditWatch(const QStringList& theFolders, const Files& theFiles, const std::function<void()>& theCall);

private:
    void watchAgain();
    void callIfChanged();
    QString state() const;

    const QStringList myFolders;
    const Files myFiles;
    const std::function<void()> myCall;
    QFileSystemWatcher myWatcher;
    QTimer myTimer; ///< runs while changes come in, as one save makes several
    QString myState;
};

#endif
