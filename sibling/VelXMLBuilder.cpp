#include "sibling/VelXMLBuilder.h"

#include <QDomDocument>

QDomElement VelXMLBuilder::buildDomElement(QDomNode& theParent, const QString& theTag)
{
    if (theParent.isNull())
        return QDomElement();
    QDomDocument document = theParent.ownerDocument();
    return theParent.appendChild(document.createElement(theTag)).toElement();
}

void VelXMLBuilder::addAttribute(QDomElement& theElement, const QString& theName, int theValue)
{
    theElement.setAttribute(theName, theValue);
}
