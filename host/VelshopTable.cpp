#include "host/VelshopTable.h"

#include <QTextStream>

void VelshopTable::print(QTextStream& theOutput, const QString& theIndent) const
{
    QList<int> widths;
    for (int column = 0; column < myRows.first().size(); ++column) {
        int width = 0;
        for (const QStringList& row : myRows)
            width = qMax(width, row.at(column).length());
        widths.append(width);
    }
    for (const QStringList& row : myRows) {
        QString line = theIndent;
        for (int column = 0; column < row.size(); ++column)
            line += row.at(column).leftJustified(widths.at(column) + 2);
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        theOutput << line << '\n';
    }
}
