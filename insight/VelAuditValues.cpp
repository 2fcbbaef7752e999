#include "insight/VelAuditValues.h"

#include "insight/VelAuditSite.h"
#include "insight/VelAuditTexts.h"
#include "insight/VelAuditWords.h"
#include "insight/VelVocabulary.h"

#include <QRegularExpression>

#include <cmath>

namespace {

const char* const NOT_A_NUMBER = "not-a-number";
const char* const OUT_OF_RANGE = "out-of-range";
const char* const NOT_A_BOOL = "not-a-bool";
const char* const NOT_A_DATE = "not-a-date";
const char* const GARBLED_DAYS = "garbled-days";
const char* const UNKNOWN_WORD = "unknown-word";
const char* const COMBINED_WORDS = "combined-words";

using Value = VelValueDescription;

// ---- numbers

bool isTooLong(const QString& theText)
{
    static const QRegularExpression digits(QStringLiteral("^\\s*[+-]?\\d+\\s*$"));
    return digits.match(theText).hasMatch();
}

void reportRefusedNumber(const VelAuditSite& theSite)
{
    if (isTooLong(theSite.text()))
        theSite.report(OUT_OF_RANGE,
                       QStringLiteral("%1 doesn't fit into 32 bits; %2").arg(theSite.quoted(), theSite.consequence()));
    else
        theSite.report(NOT_A_NUMBER,
                       QStringLiteral("%1 isn't a whole number; %2").arg(theSite.quoted(), theSite.consequence()));
}

/// The numbers of words: "0 (net), 1 (CD) or 4 (kiosk)".
QString numbersOf(const VelVocabulary& theVocabulary)
{
    QStringList numbers;
    for (const VelVocabulary::Word& word : theVocabulary.myWords)
        numbers.append(QStringLiteral("%1 (%2)").arg(QString::number(word.myValue), word.myMeaning));
    return VelAuditWords::choice(numbers);
}

bool isOfWord(const VelVocabulary& theVocabulary, int theNumber)
{
    return std::any_of(theVocabulary.myWords.begin(), theVocabulary.myWords.end(),
                       [theNumber](const VelVocabulary::Word& theWord) { return theWord.myValue == theNumber; });
}

bool isTakenOff(const Value& theValue)
{
    return theValue.myType == Value::TYPE_CENTS && theValue.myHighest == 0;
}

void checkRange(const VelAuditSite& theSite, int theNumber)
{
    const Value& value = theSite.description();
    const bool isGrave = theSite.isOfPrice() && value.myType == Value::TYPE_CENTS;
    if (theNumber < value.myLowest)
        theSite.report(OUT_OF_RANGE, QStringLiteral("%1 is below %2").arg(theSite.quoted()).arg(value.myLowest),
                       isGrave);
    else if (theNumber > value.myHighest && !isTakenOff(value)) // a coupon that adds is told by what it does to bills
        theSite.report(OUT_OF_RANGE, QStringLiteral("%1 is above %2").arg(theSite.quoted()).arg(value.myHighest),
                       isGrave);
    else if (!value.myVocabulary.myWords.isEmpty() && !isOfWord(value.myVocabulary, theNumber))
        theSite.report(UNKNOWN_WORD, QStringLiteral("%1 is none of the numbers known here: %2")
                                         .arg(theSite.quoted(), numbersOf(value.myVocabulary)));
}

void checkWholeNumber(const VelAuditSite& theSite)
{
    int number = 0;
    if (theSite.isWholeNumber(number))
        checkRange(theSite, number);
    else
        reportRefusedNumber(theSite);
}

/// Read as a fraction; infinite ones and such are numbers to the reader, too, but none to people.
void checkFactor(const VelAuditSite& theSite)
{
    bool isNumber = false;
    const double factor = theSite.text().toDouble(&isNumber);
    if (!isNumber || !std::isfinite(factor))
        theSite.report(NOT_A_NUMBER,
                       QStringLiteral("%1 isn't a number; amounts in this currency are wrong").arg(theSite.quoted()),
                       true);
}

// ---- words

QStringList partsOf(const QString& theText)
{
    QStringList parts = theText.split(QLatin1Char(','));
    for (QString& part : parts)
        part = part.trimmed();
    return parts;
}

/// The word that a value stands for with what it means, null for none: "1" (CD).
QString wordOf(const VelVocabulary& theVocabulary, int theValue)
{
    for (const VelVocabulary::Word& word : theVocabulary.myWords)
        if (word.myValue == theValue)
            return QStringLiteral("\"%1\" (%2)").arg(word.myText, word.myMeaning);
    return QStringLiteral("what no word stands for");
}

void reportUnknownWord(const VelAuditSite& theSite, const QString& theWord)
{
    const VelVocabulary& vocabulary = theSite.description().myVocabulary;
    const QString nearest = VelAuditWords::nearest(theWord, vocabulary.texts());
    const QString known = nearest.size() > 1 ? QStringLiteral("did you mean \"%1\"?").arg(nearest)
                                             : QStringLiteral("known are ") + VelAuditWords::choice(vocabulary.texts());
    const QString reason =
        vocabulary.isInTable(theWord) ? QStringLiteral("has no meaning here") : QStringLiteral("isn't a known word");
    theSite.report(UNKNOWN_WORD, QStringLiteral("%1 %2; %3").arg(theSite.quoted(), reason, known));
}

/// Words that are all the same combine into themselves.
void checkCombined(const VelAuditSite& theSite, const QStringList& theParts)
{
    const VelVocabulary& vocabulary = theSite.description().myVocabulary;
    const int combined = vocabulary.myDecode(theSite.text());
    if (combined == vocabulary.myDecode(theParts.first()) && combined == vocabulary.myDecode(theParts.last()) &&
        vocabulary.word(theParts.first()))
        return;
    theSite.report(
        COMBINED_WORDS,
        QStringLiteral("%1 is no list: its words combine into %2").arg(theSite.quoted(), wordOf(vocabulary, combined)));
}

/// Nothing written is nothing meant, where that is allowed.
bool isLeftOpen(const VelAuditSite& theSite)
{
    return theSite.text().trimmed().isEmpty() && theSite.description().myNeed != NEED_MUST;
}

/// A type of nothing but blanks isn't empty to the library.
bool isTakenAsMissing(const VelAuditSite& theSite)
{
    const VelVocabulary& vocabulary = theSite.description().myVocabulary;
    return theSite.text().isEmpty() ||
           vocabulary.myDecode(theSite.text()) == vocabulary.myDecode(theSite.description().myDefault);
}

void checkWord(const VelAuditSite& theSite)
{
    const VelVocabulary& vocabulary = theSite.description().myVocabulary;
    if (isLeftOpen(theSite) && isTakenAsMissing(theSite))
        return;
    const QStringList parts = partsOf(theSite.text());
    for (const QString& part : parts)
        if (!vocabulary.word(part)) {
            reportUnknownWord(theSite, part);
            return;
        }
    if (parts.size() > 1)
        checkCombined(theSite, parts);
}

// ---- others

void checkBool(const VelAuditSite& theSite)
{
    if (!theSite.isBool())
        theSite.report(NOT_A_BOOL,
                       QStringLiteral("%1 is neither true nor false; %2").arg(theSite.quoted(), theSite.consequence()));
}

void checkDateTime(const VelAuditSite& theSite)
{
    if (!theSite.isDateTime())
        theSite.report(
            NOT_A_DATE,
            QStringLiteral("%1 is no date and time such as 2099-12-31T23:59:59, so it is none").arg(theSite.quoted()));
}

/// What stands beside the numbers is passed over by the reader, and of three numbers the middle one.
void checkDays(const VelAuditSite& theSite)
{
    static const QRegularExpression days(QStringLiteral("^\\s*\\d{1,9}(-\\d{1,9})?\\s*$"));
    if (!days.match(theSite.text()).hasMatch())
        theSite.report(GARBLED_DAYS, QStringLiteral("%1 is neither a number of days nor two with a hyphen between; %2")
                                         .arg(theSite.quoted(), VelAuditTexts::daysRead(theSite)));
}

} // namespace

void VelAuditValues::check(const VelAuditSite& theSite)
{
    switch (theSite.description().myType) {
    case Value::TYPE_BOOL:
        return checkBool(theSite);
    case Value::TYPE_DATE_TIME:
        return checkDateTime(theSite);
    case Value::TYPE_DAYS:
        return checkDays(theSite);
    case Value::TYPE_WORD:
        return checkWord(theSite);
    case Value::TYPE_FACTOR:
        return checkFactor(theSite);
    case Value::TYPE_LINE:
    case Value::TYPE_TEXT:
    case Value::TYPE_CODE:
    case Value::TYPE_CODE_REFERENCE:
        return VelAuditTexts::check(theSite);
    default:
        return checkWholeNumber(theSite);
    }
}
