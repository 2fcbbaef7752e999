#ifndef VELXMLLOADER_H
#define VELXMLLOADER_H

#include "sibling/VelSiblingExport.h"

#include <QDomElement>
#include <QFileInfo>

/// Loads XML documents.
class VELSIBLING_EXPORT VelXMLLoader
{
public:
    /// The document element of the file, a whole tree without a parent or siblings. Null, with one warning, for a file
    /// that can't be read or is not XML. Hostile documents are refused the same way: those that nest deeper than 256
    /// levels, those with more than 256 attributes in an element, and those that declare entities, elements or
    /// notations of their own.
    static QDomElement loadDocumentElement(const QFileInfo& theFile);
};

#endif
