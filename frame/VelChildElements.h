#ifndef VELCHILDELEMENTS_H
#define VELCHILDELEMENTS_H

#include <QDomElement>
#include <QString>

/**
 * The child elements of a node in document order, for a range-based for: all of them, or those of one tag.
 * A null node has none.
 */
class VelChildElements
{
public:
    /// What a range-based for needs, and no more.
    class Iterator
    {
    public:
        /// Stands at the element, null for the end.
        Iterator(const QDomElement& theElement, const QString& theTag) : myElement(theElement), myTag(theTag) {}
        /// The element it stands at.
        const QDomElement& operator*() const { return myElement; }
        /// On to the next sibling element of the tag.
        Iterator& operator++()
        {
            myElement = myElement.nextSiblingElement(myTag);
            return *this;
        }
        /// Whether the two stand at different elements.
        bool operator!=(const Iterator& theOther) const { return myElement != theOther.myElement; }

    private:
        QDomElement myElement;
        QString myTag;
    };

    /// An empty tag stands for any.
    explicit VelChildElements(const QDomNode& theParent, const QString& theTag = QString())
        : myParent(theParent), myTag(theTag)
    {
    }

    /// At the first child element of the tag.
    Iterator begin() const { return Iterator(myParent.firstChildElement(myTag), myTag); }
    /// Behind the last one.
    Iterator end() const { return Iterator(QDomElement(), myTag); }

private:
    QDomNode myParent;
    QString myTag;
};

#endif
