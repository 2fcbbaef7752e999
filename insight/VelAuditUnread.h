#ifndef VELAUDITUNREAD_H
#define VELAUDITUNREAD_H

#include "insight/VelDocumentDescription.h"

#include <QMultiMap>

class VelAuditReport;
struct VelAuditDocument;

/// Reports what is written in a document and never read, with the word that was most likely meant.
class VelAuditUnread
{
public:
    VelAuditUnread(const VelAuditDocument& theDocument, VelAuditReport& theReport);

    /// What a child of an element is, null for one that isn't read, which is reported.
    const VelElementDescription* child(const QDomElement& theChild, const VelElementDescription& theParent);
    /// One of which only the first counts.
    void secondElement(const QDomElement& theElement);
    /// One that the element doesn't have.
    void attribute(const QDomElement& theElement, const VelElementDescription& theDescription, const QString& theName);
    /// Whether an attribute that is known isn't read all the same, which is reported.
    bool isIdle(const QDomElement& theElement, const VelElementDescription& theDescription,
                const VelValueDescription& theValue);
    /// Any text but blanks.
    void text(const QDomElement& theElement);

private:
    const VelElementDescription* builtByTag(const QDomElement& theChild, const VelElementDescription& theParent);
    void unknownElement(const QDomElement& theElement, const VelElementDescription& theParent);
    /// The elements of the document by their tags.
    QList<const VelElementDescription*> places(const QString& theTag);
    QStringList elementsWith(const QString& theAttribute);
    void collect(const VelElementDescription& theElement);

    const VelAuditDocument& myDocument;
    VelAuditReport& myReport;
    QMultiMap<QString, const VelElementDescription*> myPlaces; ///< filled when it is first needed
};

#endif
