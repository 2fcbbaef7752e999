#ifndef VELTESTACCOUNT_H
#define VELTESTACCOUNT_H

#include "sibling/VelKeyAccount.h"
#include "support/VelTestMain.h"

/// A key account in a folder of its own.
class TestAccount
{
public:
    TestAccount() {} // not by default, or no constant account could be made without an initialiser

    QString path(const QString& theFile = QString()) const { return myFolder.filePath(theFile); }

    QFileInfo write(const QString& theFile, const QByteArray& theContent) const
    {
        QFile file(path(theFile));
        if (!file.open(QIODevice::WriteOnly) || file.write(theContent) != theContent.size())
            qFatal("The test can't write its own file.");
        return QFileInfo(path(theFile));
    }

    /// Makes it the application's key account, which lets its documents be read.
    void activate() const { VelKeyAccount::instance()->activate(QDir(path())); }

    void activateWithDetails(const QByteArray& theDocument) const
    {
        write(QStringLiteral("orderingdetails.xml"), theDocument);
        activate();
    }

private:
    QTemporaryDir myFolder;
};

#endif
