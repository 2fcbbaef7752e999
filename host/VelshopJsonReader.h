#ifndef VELSHOPJSONREADER_H
#define VELSHOPJSONREADER_H

#include "host/VelshopError.h"

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

/// Reads a JSON file, or standard input as "-", strictly: what is missing, of the wrong type or out of range is refused
/// in one line that names the file and the place. The first refusal counts; what is read behind it means nothing.
class VelshopJsonReader
{
public:
    explicit VelshopJsonReader(const QString& theFile) : myFile(theFile) {}

    bool isRefused() const { return !myError.isEmpty(); }
    VelshopError error() const { return myError; }

    /// The place is a path such as items[2].count.
    void refuse(const QString& thePlace, const QString& theReason);

    /// The file's object; malformed JSON is refused with line and column.
    QJsonObject document();

    /// A misspelt key would be a wish that nobody hears.
    void allowKeys(const QJsonObject& theObject, const QString& thePlace, const QStringList& theKeys);

    /// These read what has to be there.
    int number(const QJsonValue& theValue, const QString& thePlace, int theLowest, int theHighest);
    QString text(const QJsonValue& theValue, const QString& thePlace);
    QJsonObject object(const QJsonValue& theValue, const QString& thePlace);
    QJsonArray array(const QJsonValue& theValue, const QString& thePlace);

private:
    void refuseAt(int theOffset, const QString& theReason);
    QByteArray content();

    QString myFile;
    QByteArray myBytes;
    VelshopError myError;
};

#endif
