#include "insight/VelPositionedDocument.h"

#include "sibling/VelGuardedDocument.h"

#include <QFile>

#include <algorithm>

namespace {

/// A view of a node that tells which one it is, as its comparison does.
class Node : public QDomNode
{
public:
    explicit Node(const QDomNode& theNode) : QDomNode(theNode) {}
    const void* identity() const { return impl; }
};

/// The next element in the order of start tags, null behind the last one.
QDomElement following(const QDomElement& theElement)
{
    const QDomElement child = theElement.firstChildElement();
    if (!child.isNull())
        return child;
    for (QDomElement at = theElement; !at.isNull(); at = at.parentNode().toElement()) {
        const QDomElement sibling = at.nextSiblingElement();
        if (!sibling.isNull())
            return sibling;
    }
    return QDomElement();
}

/// The guard and the tree's parser say where they gave up; the index knows the place better when it gave up there, too.
VelDocumentPositions::Remark errorOf(const VelGuardedDocument::Refusal& theRefusal,
                                     const VelDocumentPositions::Remark& theOwnError)
{
    const VelDocumentPlace place{theRefusal.myLine, theRefusal.myColumn};
    const bool isOwnEarlier = theOwnError.myPlace.isValid() && theOwnError.myPlace.myLine <= place.myLine;
    return isOwnEarlier ? theOwnError : VelDocumentPositions::Remark{place, theRefusal.myReason};
}

} // namespace

VelPositionedDocument::VelPositionedDocument(const QFileInfo& theFile)
{
    QFile file(theFile.filePath());
    if (theFile.filePath().isEmpty())
        myError.myReason = QStringLiteral("there is no file name"); // Qt would add a warning of its own
    else if (file.open(QIODevice::ReadOnly))
        read(file.readAll());
    else
        myError.myReason = file.errorString();
}

VelPositionedDocument::VelPositionedDocument(const QByteArray& theBytes)
{
    read(theBytes);
}

int VelPositionedDocument::number(const QDomElement& theElement) const
{
    const void* node = Node(theElement).identity();
    const auto found = std::lower_bound(myNumbers.begin(), myNumbers.end(), std::make_pair(node, -1));
    return found != myNumbers.end() && found->first == node ? found->second : -1;
}

VelDocumentPlace VelPositionedDocument::place(const QDomElement& theElement) const
{
    return myPositions.element(number(theElement));
}

VelDocumentPlace VelPositionedDocument::attributeName(const QDomElement& theElement, const QString& theName) const
{
    return myPositions.attributeName(number(theElement), theName);
}

VelDocumentPlace VelPositionedDocument::attributeValue(const QDomElement& theElement, const QString& theName) const
{
    return myPositions.attributeValue(number(theElement), theName);
}

VelDocumentPlace VelPositionedDocument::elementText(const QDomElement& theElement) const
{
    return myPositions.elementText(number(theElement));
}

void VelPositionedDocument::read(const QByteArray& theBytes)
{
    VelGuardedDocument::Refusal refusal;
    const bool isTree = VelGuardedDocument::setContent(myDocument, theBytes, refusal);
    myPositions = VelDocumentPositions(VelDocumentText(theBytes));
    if (isTree) {
        numberElements();
        return;
    }
    myDocument.clear(); // of what is refused, the parser leaves the beginning behind
    myError = errorOf(refusal, myPositions.error());
}

void VelPositionedDocument::numberElements()
{
    myNumbers.reserve(myPositions.elementCount());
    int number = 0;
    for (QDomElement element = root(); !element.isNull(); element = following(element))
        myNumbers.append({Node(element).identity(), number++});
    std::sort(myNumbers.begin(), myNumbers.end());
}
