#ifndef VELDOCUMENTDESCRIPTION_H
#define VELDOCUMENTDESCRIPTION_H

#include "insight/VelInsightExport.h"
#include "insight/VelVocabulary.h"

#include <QDomElement>
#include <QString>
#include <QStringList>
#include <QVector>

#include <climits>

/// Says when an attribute is read at all: when another attribute has one of some words, or none of them.
struct VELINSIGHT_EXPORT VelReadingCondition
{
    QString myElement;     ///< tag of the ancestor that has the other attribute, null for the same element
    QString myAttribute;   ///< the other attribute; one that is missing counts with its default
    QStringList myWords;   ///< compared in upper case and without blanks around them
    bool myIsNone = false; ///< true: it is read with none of the words
};

/// Whether an author must write something.
enum VelNeed {
    NEED_MUST,   ///< without it nothing comes of the element, or something wrong
    NEED_SHOULD, ///< customers or other people miss it
    NEED_MAY,    ///< the default is a sensible value
    NEED_IDLE    ///< the library reads it and nothing comes of it: not to be written
};

/// What is known of an attribute, or of the text of an element.
struct VELINSIGHT_EXPORT VelValueDescription
{
    /// How a value is written.
    enum Type {
        TYPE_CENTS,          ///< whole hundredths of the primary currency
        TYPE_COUNT,          ///< a whole number: pieces, pages, millimetres, levels
        TYPE_ID,             ///< a whole number that other places name
        TYPE_REFERENCE,      ///< a number that another place has as its id
        TYPE_CODE,           ///< a text that other places name, letter by letter
        TYPE_CODE_REFERENCE, ///< a text that another place has as its code
        TYPE_BOOL,           ///< true, 1, false or 0
        TYPE_DATE_TIME,      ///< ISO, such as 2024-02-01T08:00:00
        TYPE_DAYS,           ///< "4" or "3-5"
        TYPE_WORD,           ///< one word of the vocabulary, in any case, blanks around it allowed
        TYPE_NUMBER,         ///< a whole number that is the value of one of the vocabulary's words
        TYPE_FACTOR,         ///< a number above 0 with a decimal point
        TYPE_LINE,           ///< a line of the order text: a key, an equals sign and a value
        TYPE_TEXT            ///< free text
    };

    QString myName;             ///< of the attribute, null for a text
    Type myType = TYPE_TEXT;    ///< how the value is written
    VelNeed myNeed = NEED_MAY;  ///< whether it has to stand there
    QString myDefault;          ///< what a missing one counts as, null for nothing
    int myLowest = INT_MIN;     ///< the range that makes sense, of numbers
    int myHighest = INT_MAX;    ///< the same
    QString myKind;             ///< of an id or a reference: article, main article, group, payment, currency, ...
    VelVocabulary myVocabulary; ///< of a word or number
    QStringList myKnownTexts;   ///< of texts of which the library knows some: those, letter by letter
    QVector<VelReadingCondition> myConditions; ///< it is read where all hold
    QString myMeaning;                         ///< one sentence

    /// Whether it is a whole number.
    bool isWholeNumber() const;
    /// Whether blanks around the value, and in a word also the case, make no difference.
    bool isTrimmed() const;
};

/// What is known of an element. It belongs to its description, which lives to the end of the process.
class VELINSIGHT_EXPORT VelElementDescription
{
public:
    /// How many elements of the tag are read.
    enum Occurrence {
        ONCE,      ///< the first one counts, further ones aren't read
        ANY_NUMBER ///< all are read
    };

    /// The tag, of a free one that which is usual.
    const QString& tag() const { return myTag; }
    /// Whether the library takes an element of any tag for this one.
    bool isTagFree() const { return myIsTagFree; }
    /// Whether elements and attributes of others may stand in it, which the library leaves to them.
    bool isOpen() const { return myIsOpen; }
    Occurrence occurrence() const { return myOccurrence; }
    VelNeed need() const { return myNeed; }
    /// One sentence.
    const QString& meaning() const { return myMeaning; }

    /// The element that it stands in, null for a root.
    const VelElementDescription* parent() const { return myParent; }
    /// The tags from the root to this one, joined by slashes.
    QString path() const;
    /// What may stand in it, in the order in which to tell it.
    const QVector<VelElementDescription>& children() const { return myChildren; }
    /// What an element of a tag within it is: the child of that tag, else the one whose tag is free, else null.
    const VelElementDescription* child(const QString& theTag) const;
    const QVector<VelValueDescription>& attributes() const { return myAttributes; }
    /// Null for one that is never read here.
    const VelValueDescription* attribute(const QString& theName) const;
    /// Its text, null where none is read.
    const VelValueDescription* text() const { return myTexts.isEmpty() ? nullptr : &myTexts.first(); }

private:
    friend class VelDescriptionBuilder;
    friend class VelDocumentDescription;

    void adopt();

    QString myTag;
    bool myIsTagFree = false;
    bool myIsOpen = false;
    Occurrence myOccurrence = ONCE;
    VelNeed myNeed = NEED_MAY;
    QString myMeaning;
    QVector<VelValueDescription> myAttributes;
    QVector<VelValueDescription> myTexts; ///< one or none
    QVector<VelElementDescription> myChildren;
    const VelElementDescription* myParent = nullptr;
};

/**
 * What a document may hold: the one place that says so. Audit, schemas and guides stand on it, and a test holds it
 * against what the library reads.
 */
class VELINSIGHT_EXPORT VelDocumentDescription
{
    Q_DISABLE_COPY(VelDocumentDescription)

public:
    /// The documents of a key account, and those that stand beside them.
    enum Kind { PRICE_LIST, ORDERING_DETAILS, CURRENCIES, APPEARANCE, COUPON, PAYMENT_ICONS };

    /// The one of that kind; lives to the end of the process.
    static const VelDocumentDescription& of(Kind theKind);
    /// All of them, in the order of the kinds.
    static QVector<const VelDocumentDescription*> all();

    /// Which document it is.
    Kind kind() const { return myKind; }
    /// The name of its schema without the ending: "pricelist", "payment-icons".
    const QString& name() const { return myName; }
    /// Where it stands in the folder of an account, "coupons/" and any name for coupons.
    const QString& file() const { return myFile; }
    /// The document element.
    const VelElementDescription& root() const { return myRoot; }

    /// What an element of such a document is, null where nothing is read.
    const VelElementDescription* element(const QDomElement& theElement) const;

private:
    VelDocumentDescription(Kind theKind, const QString& theName, const QString& theFile,
                           const VelElementDescription& theRoot);

    Kind myKind;
    QString myName;
    QString myFile;
    VelElementDescription myRoot;
};

#endif
