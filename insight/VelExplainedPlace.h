#ifndef VELEXPLAINEDPLACE_H
#define VELEXPLAINEDPLACE_H

#include "insight/VelDocumentPlace.h"

#include <QString>
#include <QVector>

/// An attribute of a document that an amount or a choice stands on. A value that owns nothing.
struct VelExplainedPlace
{
    QString myFile;           ///< path of the document as it was opened
    VelDocumentPlace myPlace; ///< the value's first character; for a missing attribute the element's `<`
    QString myElement;        ///< tag of the element
    QString myAttribute;      ///< name of the attribute; null for the text of the element
    QString myValue; ///< as written, with entities resolved; null for a missing attribute, whose default counts

    /// Whether the attribute is missing, so that its default holds.
    bool isDefault() const { return myValue.isNull(); }
};

/// Whether it is the same attribute of the same element.
inline bool operator==(const VelExplainedPlace& theLeft, const VelExplainedPlace& theRight)
{
    return theLeft.myPlace == theRight.myPlace && theLeft.myAttribute == theRight.myAttribute &&
           theLeft.myFile == theRight.myFile;
}

/// What something stands on.
struct VelExplainedPlaces
{
    QVector<VelExplainedPlace> myDecides; ///< the amount or the choice is made of these
    /// These were looked at and lost, but another value could make them win.
    QVector<VelExplainedPlace> myCompared;
};

#endif
