#ifndef VELAUDITEDSHOP_H
#define VELAUDITEDSHOP_H

#include "insight/VelAudit.h"
#include "support/VelTestAccount.h"

#include <QDir>

/// A copy of a sample shop in a folder of its own, whose documents are damaged one at a time.
class AuditedShop
{
public:
    explicit AuditedShop(const QString& theShop)
    {
        const QDir shop(QStringLiteral(VELTARM_SOURCE_DIR "/") + theShop);
        for (const QString& file : VelAuditShop::files(shop))
            put(file, read(shop.filePath(file)));
    }

    const QMap<QString, QByteArray>& texts() const { return myTexts; }
    void put(const QString& theFile, const QByteArray& theText)
    {
        myTexts.insert(theFile, theText);
        QDir().mkpath(QFileInfo(myAccount.path(theFile)).path());
        myAccount.write(theFile, theText);
    }

    /// The findings while a document has another text.
    QVector<VelAuditFinding> findingsWith(const QString& theFile, const QByteArray& theText) const
    {
        myAccount.write(theFile, theText);
        const QVector<VelAuditFinding> findings = VelAudit(QDir(myAccount.path())).findings();
        myAccount.write(theFile, myTexts.value(theFile));
        return findings;
    }

    QString path() const { return myAccount.path(); }

private:
    static QByteArray read(const QString& theFile)
    {
        QFile file(theFile);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("The sample shop can't be read.");
        return file.readAll();
    }

    const TestAccount myAccount;
    QMap<QString, QByteArray> myTexts;
};

#endif
