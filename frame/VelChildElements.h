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
    class Iterator
    {
    public:
        Iterator(const QDomElement& theElement, const QString& theTag) : myElement(theElement), myTag(theTag) {}
        const QDomElement& operator*() const { return myElement; }
        Iterator& operator++()
        {
            myElement = myElement.nextSiblingElement(myTag);
            return *this;
        }
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

    Iterator begin() const { return Iterator(myParent.firstChildElement(myTag), myTag); }
    Iterator end() const { return Iterator(QDomElement(), myTag); }

private:
    QDomNode myParent;
    QString myTag;
};

#endif
