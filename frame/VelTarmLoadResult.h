#ifndef VELTARMLOADRESULT_H
#define VELTARMLOADRESULT_H

#include "frame/VelTarmExport.h"

#include <QDomElement>
#include <QFileInfo>
#include <QString>

/// How the last load of a document went: a document that can't be read counts as one without content, and this tells
/// why. A value.
class VELTARM_EXPORT VelTarmLoadResult
{
public:
    /// Of no load: no file, nothing read, no reason.
    VelTarmLoadResult() = default;

    /// Of a file that VelXMLLoader::loadDocumentElement() gave that document element of. For a null element the reason
    /// is looked up in the file.
    VelTarmLoadResult(const QFileInfo& theFile, const QDomElement& theRoot);

    /// The file as it was given; empty when none was.
    QString file() const { return myFile; }

    /// Whether the document was read.
    bool wasRead() const { return myWasRead; }

    /// Why the document wasn't read: the parser's, the guard's or the system's words; null when it was.
    QString reason() const { return myReason; }

    /// The line at which reading ended, counted from 1; 0 when the reason has no place in the document.
    int line() const { return myLine; }

    /// The column in that line, counted from 1; 0 when the reason has no place in the document.
    int column() const { return myColumn; }

    /// The same in one line for people, "FILE, line 2, column 17: REASON" or "FILE: REASON"; null when the document was
    /// read.
    QString problem() const;

    /// How many products the load brought in for the first time; 0 for a document that holds no products.
    int newProducts() const { return myNewProducts; }

    /// How many products known before it found again, and so read anew; 0 for a document that holds no products.
    int updatedProducts() const { return myUpdatedProducts; }

    /// How many products known before it did not find, whether they were deprecated already or are since; 0 for a
    /// document that holds no products.
    int deprecatedProducts() const { return myDeprecatedProducts; }

    /// For the registry: sets the three counts.
    void setProducts(int theNew, int theUpdated, int theDeprecated);

private:
    QString myFile;
    bool myWasRead = false;
    QString myReason;
    int myLine = 0;
    int myColumn = 0;
    int myNewProducts = 0;
    int myUpdatedProducts = 0;
    int myDeprecatedProducts = 0;
};

#endif
