#ifndef VELDOCUMENTPOSITIONS_H
#define VELDOCUMENTPOSITIONS_H

#include "insight/VelDocumentText.h"
#include "insight/VelInsightExport.h"

#include <QString>
#include <QVector>

#include <utility>

/**
 * Where each element, attribute name, attribute value and text of a document stands. Elements go by their number: the
 * root is 0, and the others follow in the order of their start tags. A value, implicitly shared; 16 bytes for an
 * element and 8 for an attribute beside the text.
 *
 * What the reader takes although it isn't well-formed (an attribute that stands twice, attributes without a blank
 * between them) is indexed as well and named in oddities().
 *
 * The lists of one that nobody keeps come by value, so that a loop may run over them.
 */
class VELINSIGHT_EXPORT VelDocumentPositions
{
public:
    /// A comment, in document order.
    struct Comment
    {
        int myOffset;   ///< of its `<!--`
        int myElement;  ///< number of the element it stands in front of: the next one on the same level, -1 for none
        QString myText; ///< between `<!--` and `-->`
    };

    /// What is told about a place.
    struct Remark
    {
        VelDocumentPlace myPlace; ///< where it is
        QString myReason;         ///< what it is, a sentence without a full stop
    };

    /// Indexes a text. One that is no XML is indexed as far as it goes.
    explicit VelDocumentPositions(const VelDocumentText& theText = VelDocumentText());

    /// The text that was indexed.
    const VelDocumentText& text() const { return myText; }
    /// Number of elements found.
    int elementCount() const { return static_cast<int>(myElements.size()); }

    /// The element's `<`. Here and below: no place for a number out of range.
    VelDocumentPlace element(int theNumber) const;
    /// The first character of the attribute's name. No place where the element doesn't have it; of one that stands
    /// twice, the last, which is the one that is read.
    VelDocumentPlace attributeName(int theNumber, const QString& theName) const;
    /// The character behind the value's opening quote, also for an empty value.
    VelDocumentPlace attributeValue(int theNumber, const QString& theName) const;
    /// The first character of the first text of the element itself that isn't blank: the blanks in front of it belong
    /// to it, and those of a CDATA section. No place where it has none.
    VelDocumentPlace elementText(int theNumber) const;
    /// The names of the attributes as they are written, one that stands twice twice.
    QVector<QString> attributeNames(int theNumber) const;
    /// The number behind the last element within this one: what it holds is `theNumber + 1` up to there.
    int endOfElement(int theNumber) const;
    /// The tag as it is written.
    QString tag(int theNumber) const;

    /// All comments, in document order.
    const QVector<Comment>& comments() const& { return myComments; }
    QVector<Comment> comments() && { return std::move(myComments); }
    /// What isn't well-formed and is read all the same, in document order. It ends after 32.
    const QVector<Remark>& oddities() const& { return myOddities; }
    QVector<Remark> oddities() && { return std::move(myOddities); }
    /// Why the text is no XML, and where. No place for one that is.
    const Remark& error() const { return myError; }

private:
    friend class VelDocumentScan;

    struct Element
    {
        int myOffset;         ///< of its `<`
        int myTextOffset;     ///< -1 for none
        int myFirstAttribute; ///< index into myAttributes; they end where those of the next element begin
        int myEnd;            ///< number behind its last descendant
    };
    struct Attribute
    {
        int myName;  ///< offset
        int myValue; ///< offset behind the quote
    };

    bool isElement(int theNumber) const { return theNumber >= 0 && theNumber < elementCount(); }
    int firstAttribute(int theNumber) const;
    const Attribute* attribute(int theNumber, const QString& theName) const;
    QString nameAt(int theOffset) const;

    VelDocumentText myText;
    QVector<Element> myElements;
    QVector<Attribute> myAttributes;
    QVector<Comment> myComments;
    QVector<Remark> myOddities;
    Remark myError;
};

#endif
