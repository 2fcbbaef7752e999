#ifndef VELPOSITIONEDDOCUMENT_H
#define VELPOSITIONEDDOCUMENT_H

#include "insight/VelDocumentPositions.h"
#include "insight/VelInsightExport.h"

#include <QDomDocument>
#include <QDomElement>
#include <QFileInfo>
#include <QVector>

#include <utility>

/**
 * A document as the library reads it, with the places beside its tree. The tree is the one that the loader makes:
 * hostile input is refused by the same rules. It owns its tree: elements of it are asked for only while it lives.
 */
class VELINSIGHT_EXPORT VelPositionedDocument
{
    Q_DISABLE_COPY(VelPositionedDocument)

public:
    /// Reads the file. One that can't be opened has an error without a place, and the system's reason.
    explicit VelPositionedDocument(const QFileInfo& theFile);
    /// Reads bytes that are no file, or not yet.
    explicit VelPositionedDocument(const QByteArray& theBytes);

    /// Whether there is a tree.
    bool isReadable() const { return !root().isNull(); }
    /// Why there is none, and where; the reason is empty where there is a tree. No place for a file that can't be
    /// opened.
    const VelDocumentPositions::Remark& error() const { return myError; }

    /// The document element, null where there is none.
    QDomElement root() const { return myDocument.documentElement(); }
    /// The decoded text with its lines.
    const VelDocumentText& text() const { return myPositions.text(); }
    /// The places by the number of an element.
    const VelDocumentPositions& positions() const { return myPositions; }

    /// The number of an element of this tree among positions(), -1 for any other.
    int number(const QDomElement& theElement) const;
    /// As those of VelDocumentPositions. No place for an element of another tree.
    VelDocumentPlace place(const QDomElement& theElement) const;
    VelDocumentPlace attributeName(const QDomElement& theElement, const QString& theName) const;
    VelDocumentPlace attributeValue(const QDomElement& theElement, const QString& theName) const;
    VelDocumentPlace elementText(const QDomElement& theElement) const;

private:
    void read(const QByteArray& theBytes);
    void numberElements();

    QDomDocument myDocument;
    VelDocumentPositions myPositions;
    VelDocumentPositions::Remark myError;
    QVector<std::pair<const void*, int>> myNumbers; ///< nodes of the tree with their numbers, by node
};

#endif
