#ifndef VELTESTDOCUMENTS_H
#define VELTESTDOCUMENTS_H

#include "insight/VelDocumentDescription.h"

#include <QDomDocument>

/// A value that makes sense for what is described.
inline QString sensibleValue(const VelValueDescription& theValue)
{
    using Value = VelValueDescription;
    if (!theValue.myVocabulary.myWords.isEmpty()) {
        const VelVocabulary::Word& word = theValue.myVocabulary.myWords.first();
        return theValue.myType == Value::TYPE_NUMBER ? QString::number(word.myValue) : word.myText;
    }
    switch (theValue.myType) {
    case Value::TYPE_BOOL:
        return QStringLiteral("true");
    case Value::TYPE_DATE_TIME:
        return QStringLiteral("2099-12-31T23:59:59");
    case Value::TYPE_DAYS:
        return QStringLiteral("3-5");
    case Value::TYPE_FACTOR:
        return QStringLiteral("0.8");
    case Value::TYPE_CODE:
    case Value::TYPE_CODE_REFERENCE:
        return QStringLiteral("EUR");
    case Value::TYPE_LINE:
        return QStringLiteral("TYPE=PSC101");
    case Value::TYPE_TEXT:
        return QStringLiteral("text");
    default:
        return QString::number(qBound(theValue.myLowest, 1, theValue.myHighest));
    }
}

/// Gives the attribute a sensible value, and ids a new one each time.
inline void setSensible(QDomElement theElement, const VelValueDescription& theAttribute)
{
    static int ourLastId = 0;
    const bool isNew =
        theAttribute.myType == VelValueDescription::TYPE_ID && theAttribute.myVocabulary.myWords.isEmpty();
    theElement.setAttribute(theAttribute.myName, isNew ? QString::number(++ourLastId) : sensibleValue(theAttribute));
}

/// Appends the element with all that it may hold, idle things too, and a copy for each other word of each attribute.
inline void appendFull(QDomDocument& theDocument, QDomNode theParent, const VelElementDescription& theDescription)
{
    QDomElement element = theDocument.createElement(theDescription.tag());
    theParent.appendChild(element);
    for (const VelValueDescription& attribute : theDescription.attributes())
        setSensible(element, attribute);
    if (theDescription.text())
        element.appendChild(theDocument.createTextNode(sensibleValue(*theDescription.text())));
    for (const VelElementDescription& child : theDescription.children())
        appendFull(theDocument, element, child);
    if (theDescription.occurrence() == VelElementDescription::ONCE)
        return;
    for (const VelValueDescription& attribute : theDescription.attributes())
        for (const VelVocabulary::Word& word : attribute.myVocabulary.myWords.mid(1)) {
            const QDomElement copy = theParent.appendChild(element.cloneNode()).toElement();
            if (const VelValueDescription* id = theDescription.attribute(QStringLiteral("id")))
                setSensible(copy, *id);
            copy.toElement().setAttribute(attribute.myName, word.myText);
        }
}

/// A document in which everything occurs that is described.
inline QDomDocument fullDocument(const VelDocumentDescription& theDescription)
{
    QDomDocument document((QString())); // the one that is not null
    appendFull(document, document, theDescription.root());
    return document;
}

#endif
