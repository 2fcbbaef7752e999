#include "host/VelshopJsonReader.h"

#include "host/VelshopJsonPlace.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

namespace {

const qint64 LARGEST_FILE = 16 * 1024 * 1024;
const int LONGEST_SHOWN_VALUE = 40;

/// The value as the file writes it, for a message.
QString shown(const QJsonValue& theValue)
{
    if (theValue.isUndefined())
        return QStringLiteral("it is missing");
    QString text = QString::fromUtf8(QJsonDocument(QJsonArray{theValue}).toJson(QJsonDocument::Compact));
    text = text.mid(1, text.size() - 2);
    if (text.size() > LONGEST_SHOWN_VALUE)
        text = text.left(LONGEST_SHOWN_VALUE) + QStringLiteral("...");
    return QStringLiteral("not ") + text;
}

} // namespace

void VelshopJsonReader::refuse(const QString& thePlace, const QString& theReason)
{
    if (!isRefused())
        refuseAt(VelshopJsonPlace::offsetOf(myBytes, thePlace), thePlace + QStringLiteral(": ") + theReason);
}

void VelshopJsonReader::refuseAt(int theOffset, const QString& theReason)
{
    const QByteArray before = myBytes.left(theOffset);
    const int line = before.count('\n') + 1;
    const int column = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).size() + 1;
    myError = {myFile, line, column, theReason};
}

/// A pipe doesn't tell its size, and a device may never end.
QByteArray VelshopJsonReader::content()
{
    QFile file(myFile);
    const bool isOpen =
        myFile == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    QByteArray bytes;
    while (isOpen && bytes.size() <= LARGEST_FILE) {
        const QByteArray more = file.read(LARGEST_FILE + 1 - bytes.size());
        if (more.isEmpty())
            break;
        bytes += more;
    }
    if (!isOpen || file.error() != QFileDevice::NoError)
        myError = {myFile, 0, 0, QStringLiteral("can't be read: ") + file.errorString()};
    else if (bytes.size() > LARGEST_FILE)
        myError = {myFile, 0, 0, QStringLiteral("is larger than %1 bytes").arg(LARGEST_FILE)};
    return bytes;
}

QJsonObject VelshopJsonReader::document()
{
    myBytes = content();
    if (isRefused())
        return QJsonObject();
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(myBytes, &error);
    if (error.error != QJsonParseError::NoError)
        refuseAt(qMax(0, error.offset - 1), error.errorString()); // the offset lies behind the last character taken
    else if (!json.isObject())
        refuseAt(0, QStringLiteral("must be an object"));
    return json.object();
}

void VelshopJsonReader::allowKeys(const QJsonObject& theObject, const QString& thePlace, const QStringList& theKeys)
{
    for (const QString& key : theObject.keys())
        if (!theKeys.contains(key))
            refuse(thePlace + key, QStringLiteral("unknown, must be one of ") + theKeys.join(QStringLiteral(", ")));
}

int VelshopJsonReader::number(const QJsonValue& theValue, const QString& thePlace, int theLowest, int theHighest)
{
    const double number = theValue.toDouble();
    if (theValue.isDouble() && number >= theLowest && number <= theHighest && number == static_cast<int>(number))
        return static_cast<int>(number);
    refuse(thePlace,
           QStringLiteral("must be a whole number from %1 to %2, ").arg(theLowest).arg(theHighest) + shown(theValue));
    return theLowest;
}

QString VelshopJsonReader::text(const QJsonValue& theValue, const QString& thePlace)
{
    if (!theValue.isString() || theValue.toString().isEmpty())
        refuse(thePlace, QStringLiteral("must be a text, ") + shown(theValue));
    return theValue.toString();
}

QJsonObject VelshopJsonReader::object(const QJsonValue& theValue, const QString& thePlace)
{
    if (!theValue.isObject())
        refuse(thePlace, QStringLiteral("must be an object, ") + shown(theValue));
    return theValue.toObject();
}

QJsonArray VelshopJsonReader::array(const QJsonValue& theValue, const QString& thePlace)
{
    if (!theValue.isArray() || theValue.toArray().isEmpty())
        refuse(thePlace, QStringLiteral("must be an array with at least one entry, ") + shown(theValue));
    return theValue.toArray();
}
