#ifndef VELTESTTABLE_H
#define VELTESTTABLE_H

#include <QtTest>

/// What a test's own text says must be understood, or the program ends with the word that isn't.
inline void require(bool theIsUnderstood, const QString& theText)
{
    if (!theIsUnderstood)
        qFatal("The test's own text is not understood: %s", qPrintable(theText));
}

/// The parts of a text, trimmed.
inline QStringList trimmedParts(const QString& theText, QChar theSeparator)
{
    QStringList parts = theText.split(theSeparator);
    for (QString& part : parts)
        part = part.trimmed();
    return parts;
}

inline int wholeNumber(const QString& theText)
{
    bool isNumber = false;
    const int result = theText.toInt(&isNumber);
    require(isNumber, theText);
    return result;
}

/// Test data as a table in text: the first line names the columns, each other line is a row whose first cell names it
/// and may be data, too. Cells stand between "|" and are trimmed.
inline void readTable(const char* theTable)
{
    QStringList lines = QString::fromUtf8(theTable).trimmed().split(QLatin1Char('\n'));
    const QStringList columns = trimmedParts(lines.takeFirst(), QLatin1Char('|'));
    static QList<QByteArray> names; // kept, since a column borrows its name
    for (const QString& column : columns) {
        names.append(column.toUtf8());
        QTest::addColumn<QString>(names.constLast().constData());
    }
    for (const QString& line : qAsConst(lines)) {
        const QStringList row = trimmedParts(line, QLatin1Char('|'));
        require(row.size() == columns.size(), line);
        QTestData& data = QTest::newRow(row.constFirst().toUtf8().constData());
        for (const QString& text : row)
            data << text;
    }
}

/// The current row's cell as text, as a number, as an answer, which is "yes" or "no", and as a word of several.
inline QString cell(const char* theColumn)
{
    return *static_cast<QString*>(QTest::qData(theColumn, qMetaTypeId<QString>()));
}

inline int number(const char* theColumn)
{
    return wholeNumber(cell(theColumn));
}

template <typename Value>
Value meaning(const QString& theWord, const QMap<QString, Value>& theWords)
{
    require(theWords.contains(theWord), theWord);
    return theWords.value(theWord);
}

inline bool answer(const char* theColumn)
{
    return meaning<bool>(cell(theColumn), {{QStringLiteral("yes"), true}, {QStringLiteral("no"), false}});
}

#endif
