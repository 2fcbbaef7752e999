#include "product/VelProductFactory.h"

#include "frame/EnumHelper.h"
#include "product/VelProduct.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductPrintFun.h"
#include "sibling/VelXMLParser.h"

#include <QDebug>

namespace {

const QString STR_TRANSFER = QStringLiteral("transfer");
const QString STR_PAYMETHOD_FEE = QStringLiteral("paymethod_fee");
const QString STR_EXPRESS_FEE = QStringLiteral("express_fee");
const QString STR_ADD_ON = QStringLiteral("add_on");
const QString STR_ARTICLE = QStringLiteral("article");
const QString STR_PRODUCT_CLASS = QStringLiteral("product_class");
const QString STR_ARRANGEMENT = QStringLiteral("arrangement");
const QString STR_ID = QStringLiteral("id");
const QString STR_NAME = QStringLiteral("name");

// Compiled in: a price list can't extend these lists.
const QString CALENDAR_IDS = QStringLiteral("8026|8089|8088|8559|8560|8561|8562|8703|9293|9295|9288|9287|9290|9286|"
                                            "9289|9285|9910|9824|9827|9825|9826|9926|9927");
const QString FOTO_BOOK_IDS = QStringLiteral("9181|9210|9171|9141|9231|9221|9604|9205|9206|9214|9254|9274|9264|9759|"
                                             "9773|9742|9751|9733|9896|8079|8068|8075|8258|8275|8292|9241|9151|9161|"
                                             "9618|9787|8588|8590|8592|8594|8596|8586|8577|8579|8581|8704|8706");
const QString EXCLUDED_PRODUCT_CLASSES = QStringLiteral("11|21");

QString text(const QDomElement& theElement, const QString& theAttribute)
{
    return VelXMLParser::attribute(theElement, theAttribute, QString());
}

void warnOfArrangement(const QDomElement& theElement)
{
    qWarning() << QStringLiteral("VelProductFactory::build() -- arrangement: %1; Produkt: %2 wird nicht unterstützt.")
                      .arg(text(theElement, STR_ARRANGEMENT), text(theElement, STR_NAME));
}

void warnOfUnlistedId(const QDomElement& theElement, const QString& theReason)
{
    const QString message =
        QStringLiteral("VelProductFactory::build() -- article id: %1; arrangement: %2; Produkt: %3 wird nicht "
                       "unterstützt: %4 ist nicht im Regulärenausdruck enthalten!");
    qWarning() << message.arg(text(theElement, STR_ID), text(theElement, STR_ARRANGEMENT), text(theElement, STR_NAME),
                              theReason);
}

} // namespace

VelProductFactory::VelProductFactory()
    : myCalendarIds(QRegularExpression::anchoredPattern(CALENDAR_IDS))
    , myFotoBookIds(QRegularExpression::anchoredPattern(FOTO_BOOK_IDS))
    , myExcludedProductClasses(QRegularExpression::anchoredPattern(EXCLUDED_PRODUCT_CLASSES))
{
}

VelProductFactory* VelProductFactory::instance()
{
    static VelProductFactory* factory = nullptr;
    if (!factory)
        factory = new VelProductFactory;
    return factory;
}

VelProductAbstract* VelProductFactory::build(const QDomElement& theElement) const
{
    const QString tag = theElement.tagName();
    if (tag == STR_TRANSFER)
        return buildTransfer(theElement);
    if (tag == STR_PAYMETHOD_FEE)
        return buildAdditionalFee(theElement);
    if (tag == STR_EXPRESS_FEE)
        return buildExpressFee(theElement);
    if (tag == STR_ADD_ON)
        return buildAddOn(theElement);
    if (tag == STR_ARTICLE)
        return buildArticle(theElement);
    return nullptr;
}

VelProductAbstract* VelProductFactory::buildAddOn(const QDomElement& theElement) const
{
    return isBuiltProductClass(text(theElement, STR_PRODUCT_CLASS)) ? buildContent(theElement) : nullptr;
}

bool VelProductFactory::isBuiltProductClass(const QString& theProductClass) const
{
    return !theProductClass.isEmpty() && !myExcludedProductClasses.match(theProductClass).hasMatch();
}

bool VelProductFactory::isKnownId(VelProductArrangement theArrangement, const QString& theId) const
{
    if (theArrangement == PRODUCT_ARRANGEMENT_PHOTOBOOK)
        return myFotoBookIds.match(theId).hasMatch();
    return theArrangement != PRODUCT_ARRANGEMENT_CALENDAR || myCalendarIds.match(theId).hasMatch();
}

VelProductAbstract* VelProductFactory::buildArticle(const QDomElement& theElement) const
{
    const VelProductArrangement arrangement = EnumHelper::decodeProductArrangement(text(theElement, STR_ARRANGEMENT));
    const bool isKnown = isKnownId(arrangement, text(theElement, STR_ID));
    switch (arrangement) {
    case PRODUCT_ARRANGEMENT_TRIVIAL:
        return buildFoto(theElement);
    case PRODUCT_ARRANGEMENT_GIFT:
        return buildGift(theElement);
    case PRODUCT_ARRANGEMENT_CARD:
        return buildCard(theElement);
    case PRODUCT_ARRANGEMENT_PHOTOBOOK:
        if (isKnown)
            return buildFotoBook(theElement);
        warnOfUnlistedId(theElement, QStringLiteral("Fotobuch"));
        return nullptr;
    case PRODUCT_ARRANGEMENT_CALENDAR:
        if (isKnown)
            return buildCalendar(theElement);
        warnOfUnlistedId(theElement, QStringLiteral("Kalender"));
        return nullptr;
    default: // none, or several that combine to another value
        warnOfArrangement(theElement);
        return nullptr;
    }
}

VelProductAbstract* VelProductFactory::buildFotoBook(const QDomElement& theElement) const
{
    return buildPrintFun(theElement, PRODUCT_CLASS_FOTO_BOOK);
}

VelProductAbstract* VelProductFactory::buildCalendar(const QDomElement& theElement) const
{
    return buildPrintFun(theElement, PRODUCT_CLASS_CALENDAR);
}

VelProductAbstract* VelProductFactory::buildCard(const QDomElement& theElement) const
{
    return buildPrintFun(theElement, PRODUCT_CLASS_CARD);
}

VelProductAbstract* VelProductFactory::buildGift(const QDomElement& theElement) const
{
    return buildPrintFun(theElement, PRODUCT_CLASS_GIFT);
}

VelProductAbstract* VelProductFactory::buildPrintFun(const QDomElement& theElement,
                                                     VelProductClass theProductClass) const
{
    return new VelProductPrintFun(theElement, theProductClass);
}

VelProductAbstract* VelProductFactory::buildFoto(const QDomElement& theElement) const
{
    return new VelProduct(theElement);
}

VelProductAbstract* VelProductFactory::buildContent(const QDomElement& theElement) const
{
    return new VelProductAddOn(theElement);
}

VelProductAbstract* VelProductFactory::buildExpressFee(const QDomElement& theElement) const
{
    return new VelProductAbstract(theElement, PRODUCT_CLASS_FEE);
}

VelProductAbstract* VelProductFactory::buildAdditionalFee(const QDomElement& theElement) const
{
    return new VelProductAbstract(theElement, PRODUCT_CLASS_FEE);
}

VelProductAbstract* VelProductFactory::buildTransfer(const QDomElement& theElement) const
{
    return new VelProductAbstract(theElement, PRODUCT_CLASS_FEE);
}
