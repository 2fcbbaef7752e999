#ifndef VELSHOPERROR_H
#define VELSHOPERROR_H

#include <QString>

/// Why a command can't answer, with the place in a file where there is one.
class VelshopError
{
public:
    VelshopError() = default;
    /// Without a place. Not explicit: most errors are a sentence.
    VelshopError(const QString& theReason) : myReason(theReason) {}
    /// With the file ("-" for standard input), and line and column in it, both from 1; 0 where the file as a whole is
    /// meant.
    VelshopError(const QString& theFile, int theLine, int theColumn, const QString& theReason)
        : myFile(theFile), myLine(theLine), myColumn(theColumn), myReason(theReason)
    {
    }

    bool isEmpty() const { return myReason.isEmpty(); }

    /// Whatever stands in a document's names, the text is one line: "FILE, line 2, column 17: REASON".
    QString text() const;
    /// The same as an object with `error` (the reason), `file`, `line` and `column`, each null where there is none.
    QByteArray json() const;

private:
    QString myFile;
    int myLine = 0;
    int myColumn = 0;
    QString myReason;
};

#endif
