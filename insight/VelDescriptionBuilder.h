#ifndef VELDESCRIPTIONBUILDER_H
#define VELDESCRIPTIONBUILDER_H

#include "insight/VelDocumentDescription.h"

#include <initializer_list>

/**
 * Writes the description of an element as a row for each attribute: its name, what it is, what a missing one counts as
 * (null for nothing), and a sentence. What limits a row, stands behind it.
 */
class VelDescriptionBuilder
{
    using This = VelDescriptionBuilder;

public:
    using Value = VelValueDescription;
    using Words = std::initializer_list<const char*>;

    /// An element of which the first one counts.
    static This once(const char* theTag, const char* theMeaning)
    {
        return This(theTag, VelElementDescription::ONCE, theMeaning);
    }
    /// An element that may be repeated.
    static This many(const char* theTag, const char* theMeaning)
    {
        return This(theTag, VelElementDescription::ANY_NUMBER, theMeaning);
    }

    // ---- what a value is

    static Value cents(int theLowest = 0) { return number(Value::TYPE_CENTS, theLowest, INT_MAX); }
    static Value centsOff() { return number(Value::TYPE_CENTS, INT_MIN, 0); }
    static Value count(int theLowest = 0) { return number(Value::TYPE_COUNT, theLowest, INT_MAX); }
    static Value id(const char* theKind, int theLowest = 1) { return named(Value::TYPE_ID, theKind, theLowest); }
    static Value idOf(const char* theKind, int theLowest = 1)
    {
        return named(Value::TYPE_REFERENCE, theKind, theLowest);
    }
    static Value code(const char* theKind) { return named(Value::TYPE_CODE, theKind, INT_MIN); }
    static Value codeOf(const char* theKind) { return named(Value::TYPE_CODE_REFERENCE, theKind, INT_MIN); }
    static Value of(Value::Type theType)
    {
        Value value;
        value.myType = theType;
        return value;
    }
    static Value text() { return of(Value::TYPE_TEXT); }
    static Value knownText(Value::Type theType, const QStringList& theTexts)
    {
        Value value = of(theType);
        value.myKnownTexts = theTexts;
        return value;
    }
    static Value word(const VelVocabulary& theWords, Value theValue = of(Value::TYPE_WORD))
    {
        theValue.myVocabulary = theWords;
        return theValue;
    }

    // ---- rows

    This& must(const char* theName, const Value& theValue, const char* theDefault, const char* theMeaning)
    {
        return row(NEED_MUST, theName, theValue, theDefault, theMeaning);
    }
    This& should(const char* theName, const Value& theValue, const char* theDefault, const char* theMeaning)
    {
        return row(NEED_SHOULD, theName, theValue, theDefault, theMeaning);
    }
    This& may(const char* theName, const Value& theValue, const char* theDefault, const char* theMeaning)
    {
        return row(NEED_MAY, theName, theValue, theDefault, theMeaning);
    }
    This& idle(const char* theName, const Value& theValue, const char* theMeaning)
    {
        return row(NEED_IDLE, theName, theValue, nullptr, theMeaning);
    }
    /// The row above is read only where another attribute has one of these words.
    This& onlyWith(const char* theAttribute, Words theWords, const char* theElement = nullptr)
    {
        return condition(theAttribute, theWords, theElement, false);
    }
    /// The row above is not read where another attribute has one of these words.
    This& notWith(const char* theAttribute, Words theWords, const char* theElement = nullptr)
    {
        return condition(theAttribute, theWords, theElement, true);
    }

    // ---- the element itself

    This& withText(const Value& theValue, const char* theDefault)
    {
        Value value = theValue;
        value.myDefault = QString::fromUtf8(theDefault);
        value.myNeed = myElement.myNeed;
        value.myMeaning = myElement.myMeaning;
        myElement.myTexts = {value};
        return *this;
    }
    This& child(const VelElementDescription& theChild)
    {
        myElement.myChildren.append(theChild);
        return *this;
    }
    This& needed(VelNeed theNeed)
    {
        myElement.myNeed = theNeed;
        return *this;
    }
    /// Elements of any tag are taken for it.
    This& ofAnyTag()
    {
        myElement.myIsTagFree = true;
        return *this;
    }
    /// Others may have their elements and attributes in it.
    This& open()
    {
        myElement.myIsOpen = true;
        return *this;
    }
    operator const VelElementDescription&() const { return myElement; }

private:
    VelDescriptionBuilder(const char* theTag, VelElementDescription::Occurrence theOccurrence, const char* theMeaning)
    {
        myElement.myTag = QString::fromLatin1(theTag);
        myElement.myOccurrence = theOccurrence;
        myElement.myMeaning = QString::fromUtf8(theMeaning);
    }

    static Value number(Value::Type theType, int theLowest, int theHighest)
    {
        Value value = of(theType);
        value.myLowest = theLowest;
        value.myHighest = theHighest;
        return value;
    }
    static Value named(Value::Type theType, const char* theKind, int theLowest)
    {
        Value value = number(theType, theLowest, INT_MAX);
        value.myKind = QString::fromLatin1(theKind);
        return value;
    }

    This& row(VelNeed theNeed, const char* theName, Value theValue, const char* theDefault, const char* theMeaning)
    {
        theValue.myNeed = theNeed;
        theValue.myName = QString::fromLatin1(theName);
        theValue.myDefault = QString::fromUtf8(theDefault);
        theValue.myMeaning = QString::fromUtf8(theMeaning);
        myElement.myAttributes.append(theValue);
        return *this;
    }
    This& condition(const char* theAttribute, Words theWords, const char* theElement, bool theIsNone)
    {
        VelReadingCondition condition;
        condition.myElement = QString::fromLatin1(theElement);
        condition.myAttribute = QString::fromLatin1(theAttribute);
        condition.myIsNone = theIsNone;
        for (const char* word : theWords)
            condition.myWords.append(QString::fromLatin1(word));
        myElement.myAttributes.last().myConditions.append(condition);
        return *this;
    }

    VelElementDescription myElement;
};

#endif
