#ifndef VELGUARDEDTEXT_H
#define VELGUARDEDTEXT_H

#include "sibling/VelGuardedDocument.h"

#include <vector>

/**
 * The text of a document for Qt 6, which reads with QXmlStreamReader. No guard can be put into that one, and it makes
 * something else of some documents than the reader of Qt 5. So the markup is gone over before: what would do harm is
 * found, and what would be read in another way is written so that it isn't.
 */
class VelGuardedText
{
public:
    /// The text has to outlive the object.
    explicit VelGuardedText(const QString& theText);

    /// The value, in quotes, that follows a name in the XML declaration; null when there is none.
    static QStringView declaredValue(const QString& theText, const QString& theName);

    /// Whether no element nests too deep or has too many attributes, as far as the text is well-formed.
    bool isHarmless() const { return myReason.isNull(); }
    VelGuardedDocument::Refusal refusalOfHarm() const { return refusalAt(myIndex - 1, myReason); }
    VelGuardedDocument::Refusal refusalAt(qsizetype theIndex, const QString& theReason) const;

    /// The text as it is to be parsed, up to what would do harm.
    QString parsed() const;
    /// The place in the text for one in what is parsed.
    qsizetype indexOf(qsizetype theParsedIndex) const;
    /// Of the text.
    qsizetype size() const { return myText.size(); }

private:
    /// A stretch of the text that is parsed as another one.
    struct Edit
    {
        qsizetype myBegin;
        qsizetype myEnd;
        QLatin1String myReplacement;
    };

    bool atEnd() const { return myIndex >= myText.size(); }
    QChar current() const { return myText.at(myIndex); }
    bool isAt(const QString& theToken) const;
    void passBehind(const QString& theToken);
    void passMarkup();
    void passText();
    void passDocumentType();
    void passInDocumentType();
    void passEndTag();
    void passStartTag();
    void passAttributes();
    void passAttributeValue();

    void refuse(const QString& theReason, qsizetype theHarm);
    void takeAnyVersion();

    const QString& myText;
    const bool myHasReturns;
    qsizetype myIndex = 0;
    int myDepth = 0;
    int myAttributes = 0;      ///< of the element at hand
    std::vector<Edit> myEdits; ///< in the order of the text
    QString myReason;          ///< why an element would do harm, null when none would
    qsizetype myHarm = 0;      ///< from where on it would
};

#endif
