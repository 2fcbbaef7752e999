#include "frame/VelChildElements.h"
#include "insight/VelAuditChecks.h"
#include "insight/VelAuditMissing.h"
#include "insight/VelAuditReport.h"
#include "insight/VelAuditShop.h"
#include "insight/VelAuditSite.h"
#include "insight/VelAuditTexts.h"
#include "insight/VelAuditUnread.h"
#include "insight/VelAuditValues.h"

#include <QSet>

namespace {

/// Goes through a document along its description.
class Walk
{
public:
    Walk(const VelAuditDocument& theDocument, VelAuditReport& theReport)
        : myDocument(theDocument), myReport(theReport), myUnread(theDocument, theReport)
    {
    }

    void element(const QDomElement& theElement, const VelElementDescription& theDescription)
    {
        attributes(theElement, theDescription);
        text(theElement, theDescription);
        VelAuditMissing::check(myDocument, theElement, theDescription, myReport);
        children(theElement, theDescription);
    }

private:
    void attributes(const QDomElement& theElement, const VelElementDescription& theDescription)
    {
        const VelDocumentPositions& positions = myDocument.myContent.positions();
        const QVector<QString> names = positions.attributeNames(myDocument.myContent.number(theElement));
        for (int index = 0; index < names.size(); ++index)
            if (names.lastIndexOf(names.at(index)) == index) // of one that stands twice the last is read
                attribute(theElement, theDescription, names.at(index));
    }

    void attribute(const QDomElement& theElement, const VelElementDescription& theDescription, const QString& theName)
    {
        const VelValueDescription* value = theDescription.attribute(theName);
        if (!value)
            myUnread.attribute(theElement, theDescription, theName);
        else if (!myUnread.isIdle(theElement, theDescription, *value))
            check(VelAuditSite(myDocument, theElement, theDescription, *value, myReport));
    }

    void text(const QDomElement& theElement, const VelElementDescription& theDescription)
    {
        if (theDescription.text())
            check(VelAuditSite(myDocument, theElement, theDescription, *theDescription.text(), myReport));
        else if (!theDescription.isOpen())
            myUnread.text(theElement);
    }

    static void check(const VelAuditSite& theSite)
    {
        VelAuditValues::check(theSite);
        VelAuditTexts::checkExact(theSite);
    }

    void children(const QDomElement& theElement, const VelElementDescription& theDescription)
    {
        QSet<const VelElementDescription*> seen;
        for (const QDomElement& child : VelChildElements(theElement)) {
            const VelElementDescription* description = myUnread.child(child, theDescription);
            if (!description)
                continue;
            if (description->occurrence() == VelElementDescription::ONCE && seen.contains(description))
                myUnread.secondElement(child);
            else
                element(child, *description);
            seen.insert(description);
        }
    }

    const VelAuditDocument& myDocument;
    VelAuditReport& myReport;
    VelAuditUnread myUnread;
};

} // namespace

void VelAuditChecks::checkDescription(const VelAuditShop& theShop, VelAuditReport& theReport)
{
    for (const auto& document : theShop.documents())
        if (document->myContent.isReadable())
            Walk(*document, theReport).element(document->myContent.root(), document->myDescription.root());
}
