#include "host/VelshopJsonPlace.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

/// Walks through well-formed JSON; the end of the text ends every step all the same.
class Walker
{
public:
    explicit Walker(const QByteArray& theJson) : myJson(theJson) {}

    int find(const QString& thePath)
    {
        skipBlanks();
        const int start = myOffset;
        if (thePath.isEmpty())
            return start;
        const char bracket = current();
        int found = start;
        ++myOffset;
        for (int index = 0; bracket == '{' || bracket == '['; ++index) {
            skipBlanks();
            if (current() == '}' || current() == ']' || current() == '\0')
                break;
            const QString name = bracket == '{' ? readKey() : QStringLiteral("[%1]").arg(index);
            if (leadsTo(name, thePath)) // the last of equal keys counts
                found = Walker(myJson, myOffset).find(rest(name, thePath));
            skipValue();
            skipBlanks();
            if (current() == ',')
                ++myOffset;
        }
        return found;
    }

private:
    Walker(const QByteArray& theJson, int theOffset) : myJson(theJson), myOffset(theOffset) {}

    char current() const { return myOffset < myJson.size() ? myJson.at(myOffset) : '\0'; }

    void skipBlanks()
    {
        while (current() == ' ' || current() == '\t' || current() == '\n' || current() == '\r')
            ++myOffset;
    }

    /// A key may hold dots itself.
    static bool leadsTo(const QString& theName, const QString& thePath)
    {
        const QChar next = thePath.size() > theName.size() ? thePath.at(theName.size()) : QLatin1Char('.');
        return thePath.startsWith(theName) && (next == QLatin1Char('.') || next == QLatin1Char('['));
    }

    static QString rest(const QString& theName, const QString& thePath)
    {
        const QString path = thePath.mid(theName.size());
        return path.startsWith(QLatin1Char('.')) ? path.mid(1) : path;
    }

    QString readKey()
    {
        const int start = myOffset;
        skipString();
        const QByteArray key = '[' + myJson.mid(start, myOffset - start) + ']';
        skipBlanks();
        ++myOffset; // the colon
        return QJsonDocument::fromJson(key).array().at(0).toString();
    }

    void skipString()
    {
        for (++myOffset; current() != '"' && current() != '\0'; ++myOffset)
            if (current() == '\\')
                ++myOffset;
        ++myOffset;
    }

    void skipValue()
    {
        for (int depth = 0; current() != '\0';) {
            const char letter = current();
            if (letter == '"') {
                skipString();
                continue;
            }
            if (depth == 0 && (letter == ',' || letter == '}' || letter == ']'))
                return;
            depth += letter == '{' || letter == '[' ? 1 : 0;
            depth -= letter == '}' || letter == ']' ? 1 : 0;
            ++myOffset;
        }
    }

    const QByteArray& myJson;
    int myOffset = 0;
};

} // namespace

int VelshopJsonPlace::offsetOf(const QByteArray& theJson, const QString& thePath)
{
    return Walker(theJson).find(thePath);
}
