#include "host/VelshopError.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonValue orNull(bool theIsThere, const QJsonValue& theValue)
{
    return theIsThere ? theValue : QJsonValue();
}

QString inOneLine(QString theText)
{
    return theText.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

QString VelshopError::text() const
{
    QString place = myFile == QLatin1String("-") ? QStringLiteral("standard input") : myFile;
    if (myLine > 0)
        place += QStringLiteral(", line %1, column %2").arg(myLine).arg(myColumn);
    return inOneLine(place.isEmpty() ? myReason : place + QStringLiteral(": ") + myReason);
}

QByteArray VelshopError::json() const
{
    return QJsonDocument(QJsonObject{{QStringLiteral("error"), inOneLine(myReason)},
                                     {QStringLiteral("file"), orNull(!myFile.isEmpty(), myFile)},
                                     {QStringLiteral("line"), orNull(myLine > 0, myLine)},
                                     {QStringLiteral("column"), orNull(myColumn > 0, myColumn)}})
        .toJson();
}
