#ifndef VELSHOPTABLE_H
#define VELSHOPTABLE_H

#include <QStringList>

class QTextStream;

/// Rows of text in columns that are as wide as they need to be; the first row is the head.
class VelshopTable
{
public:
    explicit VelshopTable(const QStringList& theHead) : myRows{theHead} {}

    /// A row has as many fields as the head.
    void add(const QStringList& theRow) { myRows.append(theRow); }
    /// Whether there is nothing below the head.
    bool isEmpty() const { return myRows.size() == 1; }
    void print(QTextStream& theOutput, const QString& theIndent = QString()) const;

private:
    QList<QStringList> myRows;
};

#endif
