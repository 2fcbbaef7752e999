#include "insight/VelAuditTexts.h"

#include "frame/EnumHelper.h"
#include "frame/VelChildElements.h"
#include "insight/VelAuditSite.h"
#include "insight/VelAuditWords.h"
#include "ordering/VelTarmShippingTime.h"
#include "price/VelDiscountLimit.h"
#include "price/VelTarmPriceValue.h"
#include "sibling/VelXMLParser.h"

#include <QDomElement>

namespace {

const char* const BLANKS = "blanks";
const char* const WRONG_CASE = "wrong-case";
const char* const INEXACT_ID = "inexact-id";
const char* const LOWER_CASE_PACKAGE = "lower-case-package";
const char* const ORDER_TEXT_SLIP = "order-text-slip";

const QString STR_ID = QStringLiteral("id");
const QString STR_TYPE = QStringLiteral("type");
const QString STR_PRODUCT_CLASS = QStringLiteral("product_class");
const QString STR_ARRANGEMENT = QStringLiteral("arrangement");
const QString STR_ARTICLE = QStringLiteral("article");
const QString STR_BASE_PRICES = QStringLiteral("base_prices");
const QString STR_DISCOUNT_PRICES = QStringLiteral("discount_prices");
const QString STR_NAME = QStringLiteral("name");

using Value = VelValueDescription;

// ---- texts of which some are known

/// The words that a text of this place may be, those that the library knows.
QStringList knownTexts(const VelAuditSite& theSite)
{
    static const QStringList classes = QStringLiteral("GPT1 WH2 WH3 WH4 WH5 WH6 WH7 WH8 WH9 WH10 WH11 ECT1 ECT2 ANG1 "
                                                      "MAP1 VDO1 10 20 11 21")
                                           .split(QLatin1Char(' '));
    return theSite.name() == STR_PRODUCT_CLASS ? classes : theSite.description().myKnownTexts;
}

/// A name by which something else finds it: a payment finds its icon so.
bool isCompared(const VelAuditSite& theSite)
{
    const Value::Type type = theSite.description().myType;
    return type == Value::TYPE_CODE || type == Value::TYPE_CODE_REFERENCE || theSite.name() == STR_PRODUCT_CLASS;
}

bool isNameOfPayment(const VelAuditSite& theSite)
{
    const VelValueDescription* id = theSite.elementDescription().attribute(STR_ID);
    return theSite.name() == STR_NAME && theSite.elementDescription().attribute(QStringLiteral("blockable")) && id;
}

void checkKnown(const VelAuditSite& theSite)
{
    const QStringList known = knownTexts(theSite);
    const QString text = theSite.text().trimmed();
    if (known.contains(theSite.text()))
        return;
    for (const QString& word : known)
        if (word.compare(text, Qt::CaseInsensitive) == 0) {
            const bool isBlank = word == text;
            theSite.report(isBlank ? BLANKS : WRONG_CASE,
                           QStringLiteral("%1 is compared letter by letter, and \"%2\" is what is known")
                               .arg(theSite.quoted(), word));
            return;
        }
    if (theSite.text() != text && (isCompared(theSite) || isNameOfPayment(theSite)))
        theSite.report(
            BLANKS, QStringLiteral("the blanks of %1 count, so it isn't found by \"%2\"").arg(theSite.quoted(), text));
}

// ---- lines of the order text

QString keyOf(const QString& theLine)
{
    return theLine.section(QLatin1Char('='), 0, 0);
}

bool beginsWithOneOf(const QString& theLine, const QStringList& theKeys)
{
    for (const QString& key : theKeys)
        if (theLine.startsWith(key, Qt::CaseInsensitive))
            return true;
    return false;
}

bool hasLineOfKey(const QDomElement& theLines, const QString& theKey)
{
    for (const QDomElement& line : VelChildElements(theLines))
        if (line.text().startsWith(theKey, Qt::CaseInsensitive))
            return true;
    return false;
}

/// Shops have keys of their own: one is taken for a slip only where the known one isn't written beside it.
void checkLine(const VelAuditSite& theSite)
{
    const QStringList& keys = theSite.description().myKnownTexts;
    if (!theSite.text().contains(QLatin1Char('=')) || beginsWithOneOf(theSite.text(), keys))
        return;
    for (const QString& key : keys) {
        const bool isSlip = VelAuditWords::distance(keyOf(theSite.text()).trimmed(), keyOf(key), 1) <= 1;
        if (isSlip && !hasLineOfKey(theSite.element().parentNode().toElement(), key)) {
            theSite.report(ORDER_TEXT_SLIP,
                           QStringLiteral("the key of %1 is none that the library looks for, did you mean \"%2\"?")
                               .arg(VelAuditWords::quoted(theSite.text()), key),
                           true);
            return;
        }
    }
}

// ---- numbers and words that are compared as texts somewhere

/// Books and calendars are known by the texts of their numbers.
bool isIdOfListedProduct(const VelAuditSite& theSite)
{
    if (theSite.name() != STR_ID || theSite.elementDescription().tag() != STR_ARTICLE)
        return false;
    const VelProductArrangement arrangement =
        EnumHelper::decodeProductArrangement(VelXMLParser::attribute(theSite.element(), STR_ARRANGEMENT, QString()));
    return arrangement == PRODUCT_ARRANGEMENT_PHOTOBOOK || arrangement == PRODUCT_ARRANGEMENT_CALENDAR;
}

void checkListedId(const VelAuditSite& theSite)
{
    int number = 0;
    if (theSite.isWholeNumber(number) && theSite.text() != QString::number(number))
        theSite.report(INEXACT_ID,
                       QStringLiteral("%1 is compared as a text with the books and calendars that are known, "
                                      "and isn't \"%2\"; the article is refused")
                           .arg(theSite.quoted())
                           .arg(number),
                       true);
}

/// The price of a single piece without any package, -1 where there is none.
int plainPrice(const QDomElement& theEntry)
{
    const QDomElement product = theEntry.parentNode().parentNode().toElement();
    int price = -1;
    for (const QString& group : {STR_BASE_PRICES, STR_DISCOUNT_PRICES})
        for (const QDomElement& entry : VelChildElements(product.firstChildElement(group))) {
            const VelTarmPriceValue value(entry);
            const bool isPlain =
                value.discountLimit().discountModel() == DISCOUNT_MODEL_BULK && value.discountLevel() == 0;
            price = isPlain ? qMax(price, value.price()) : price;
        }
    return price;
}

/// In lower case each piece costs the price: when that is more than a piece costs by itself, a sum was meant.
void checkPriceOfPieces(const VelAuditSite& theSite)
{
    const int price = VelTarmPriceValue(theSite.element()).price();
    const int plain = plainPrice(theSite.element());
    if (plain >= 0 && price > plain)
        theSite.report(
            LOWER_CASE_PACKAGE,
            QStringLiteral(
                "%1 in lower case makes each piece cost %2, and one piece by itself costs %3; did you mean \"%4\"?")
                .arg(theSite.quoted())
                .arg(price)
                .arg(plain)
                .arg(theSite.text().trimmed().toUpper()),
            true);
}

/// The letter of a package says by its case what the price is for, and a blank has none.
void checkPackageLetter(const VelAuditSite& theSite)
{
    const VelDiscountLimit limit(theSite.element());
    if (!isPackageModel(limit.discountModel()) || limit.isPackage())
        return;
    if (theSite.text().trimmed().at(0).isUpper())
        theSite.report(
            BLANKS,
            QStringLiteral("%1 begins with a blank, so the price is that of each piece and not of the package")
                .arg(theSite.quoted()),
            true);
    else
        checkPriceOfPieces(theSite);
}

} // namespace

void VelAuditTexts::check(const VelAuditSite& theSite)
{
    if (theSite.description().myType == Value::TYPE_LINE)
        checkLine(theSite);
    else
        checkKnown(theSite);
}

void VelAuditTexts::checkExact(const VelAuditSite& theSite)
{
    if (isIdOfListedProduct(theSite))
        checkListedId(theSite);
    if (theSite.isOfPrice() && theSite.name() == STR_TYPE && !theSite.text().trimmed().isEmpty())
        checkPackageLetter(theSite);
}

QString VelAuditTexts::daysRead(const VelAuditSite& theSite)
{
    const VelTarmShippingTime time(theSite.element());
    if (time.minDays() < 0)
        return QStringLiteral("no days are read");
    return time.varies() ? QStringLiteral("%1 to %2 days are read").arg(time.minDays()).arg(time.maxDays())
                         : QStringLiteral("%1 days are read").arg(time.minDays());
}
