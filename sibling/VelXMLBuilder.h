#ifndef VELXMLBUILDER_H
#define VELXMLBUILDER_H

#include "sibling/VelSiblingExport.h"

#include <QDomElement>
#include <QString>

/// Building of elements.
class VELSIBLING_EXPORT VelXMLBuilder
{
public:
    /// A new child element of that tag, behind the children that theParent has; null under a null parent.
    static QDomElement buildDomElement(QDomNode& theParent, const QString& theTag);

    /// Sets an attribute to the decimal digits of a number.
    static void addAttribute(QDomElement& theElement, const QString& theName, int theValue);
};

#endif
