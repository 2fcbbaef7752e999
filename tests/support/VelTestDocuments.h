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

/// A document in which everything occurs that is described, what has no effect only if it is asked for. An element that
/// may be repeated has a copy for each other word of its attributes.
class FullDocument
{
public:
    FullDocument(const VelDocumentDescription& theDescription, bool theWithIdle)
        : myIsWithIdle(theWithIdle), myDocument((QString())) // the name makes it one that is not null
    {
        append(myDocument, theDescription.root());
    }
    QDomElement root() const { return myDocument.documentElement(); }
    QByteArray bytes() const { return myDocument.toByteArray(); }

private:
    bool isLeftOut(VelNeed theNeed) const { return theNeed == NEED_IDLE && !myIsWithIdle; }

    void append(QDomNode theParent, const VelElementDescription& theDescription)
    {
        if (isLeftOut(theDescription.need()))
            return;
        const QDomElement element = theParent.appendChild(myDocument.createElement(theDescription.tag())).toElement();
        for (const VelValueDescription& attribute : theDescription.attributes())
            set(element, attribute, sensibleValue(attribute));
        if (theDescription.text())
            QDomNode(element).appendChild(myDocument.createTextNode(sensibleValue(*theDescription.text())));
        for (const VelElementDescription& child : theDescription.children())
            append(element, child);
        if (theDescription.occurrence() == VelElementDescription::ANY_NUMBER)
            appendCopies(element, theDescription);
    }

    void appendCopies(const QDomElement& theElement, const VelElementDescription& theDescription)
    {
        for (const VelValueDescription& attribute : theDescription.attributes())
            for (const VelVocabulary::Word& word : attribute.myVocabulary.myWords.mid(1)) {
                const QDomElement copy = theElement.parentNode().appendChild(theElement.cloneNode()).toElement();
                if (const VelValueDescription* id = theDescription.attribute(QStringLiteral("id")))
                    set(copy, *id, sensibleValue(*id));
                set(copy, attribute, word.myText);
            }
    }

    /// Ids are new each time.
    void set(QDomElement theElement, const VelValueDescription& theAttribute, const QString& theText)
    {
        const bool isNew =
            theAttribute.myType == VelValueDescription::TYPE_ID && theAttribute.myVocabulary.myWords.isEmpty();
        if (!isLeftOut(theAttribute.myNeed))
            theElement.setAttribute(theAttribute.myName, isNew ? QString::number(++myLastId) : theText);
    }

    const bool myIsWithIdle;
    QDomDocument myDocument;
    int myLastId = 0;
};

#endif
