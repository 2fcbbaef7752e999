#ifndef VELTESTTABLE_H
#define VELTESTTABLE_H

#include <QtTest>

/// Test data as a table in text: the first line names the columns, each other line is a row whose first cell names it
/// and may be data, too. Cells stand between "|" and are trimmed.
inline void readTable(const char* theTable)
{
    const auto cells = [](const QString& theLine) {
        QStringList result;
        for (const QString& text : theLine.split(QLatin1Char('|')))
            result.append(text.trimmed());
        return result;
    };
    QStringList lines = QString::fromUtf8(theTable).trimmed().split(QLatin1Char('\n'));
    const QStringList columns = cells(lines.takeFirst());
    static QList<QByteArray> names; // kept, since a column borrows its name
    for (const QString& column : columns) {
        names.append(column.toUtf8());
        QTest::addColumn<QString>(names.constLast().constData());
    }
    for (const QString& line : qAsConst(lines)) {
        const QStringList row = cells(line);
        if (row.size() != columns.size())
            qFatal("The test's own table has a row of another length: %s", qPrintable(line));
        QTestData& data = QTest::newRow(row.constFirst().toUtf8().constData());
        for (const QString& text : row)
            data << text;
    }
}

/// The current row's cell as text, as a number, and as an answer, which is "yes" or "no".
inline QString cell(const char* theColumn)
{
    return *static_cast<QString*>(QTest::qData(theColumn, qMetaTypeId<QString>()));
}

inline int number(const char* theColumn)
{
    bool isNumber = false;
    const int result = cell(theColumn).toInt(&isNumber);
    if (!isNumber)
        qFatal("The test's own cell is no number: %s", qPrintable(cell(theColumn)));
    return result;
}

inline bool answer(const char* theColumn)
{
    return cell(theColumn) == QLatin1String("yes");
}

#endif
