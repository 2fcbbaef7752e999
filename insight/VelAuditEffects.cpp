#include "insight/VelAuditShopChecks.h"

#include "frame/VelChildElements.h"
#include "insight/VelAuditPhrases.h"
#include "insight/VelAuditPrices.h"
#include "insight/VelAuditReport.h"
#include "insight/VelAuditWords.h"
#include "sibling/VelProductType.h"
#include "sibling/VelXMLParser.h"

using VelAuditPhrases::cents;
using VelAuditPhrases::line;
using VelAuditPhrases::orderWay;

namespace {

const QString STR_INPUT_SOURCE = QStringLiteral("input_source");
const QString STR_DELIVERY_TYPE = QStringLiteral("delivery_type");
const QString STR_NON_OFFER_PRICE = QStringLiteral("non_offer_price");
const QString STR_END_OFFER_DATE = QStringLiteral("end_offer_date");
const QString STR_PRICE = QStringLiteral("price");
const QString STR_ID = QStringLiteral("id");
const QString STR_ARRANGEMENT = QStringLiteral("arrangement");
const QString STR_MIN_PAGES = QStringLiteral("min_pages");
const QString STR_MAX_PAGES = QStringLiteral("max_pages");
const QString STR_PAGE_STEP = QStringLiteral("page_step");
const QString STR_ORDER_TXT_LINES = QStringLiteral("order_txt_lines");
const QString STR_SIZE = QStringLiteral("size");
const QString STR_DPI_GREEN = QStringLiteral("dpi_green");
const QString STR_DPI_YELLOW = QStringLiteral("dpi_yellow");

const int DPI_GREEN = 150;
const int DPI_YELLOW = 90;

/// What became of one price entry.
struct Fate
{
    const VelTarmPriceBand* myBand = nullptr; ///< one band of it, null where none is left
    VelOrderSource mySource{INPUT_SOURCE_UNKNOWN, DELIVERY_TYPE_UNKNOWN};
    bool myIsOffered = false;
};

QVector<Fate> fates(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices)
{
    QVector<Fate> fates(thePrices.elements().size());
    for (const VelOrderSource& source : thePrices.sources()) {
        const bool isOffered = theCatalog.sources().contains(source);
        for (const VelTarmPriceBand& band : thePrices.view(source).bands()) {
            Fate& fate = fates[band.entry()];
            if (!fate.myBand)
                fate = {&band, source, isOffered};
            fate.myIsOffered = fate.myIsOffered || isOffered;
        }
    }
    return fates;
}

/// The first order way that an entry stands under by its words; an invalid one where it stands under none.
VelOrderSource firstSource(const QDomElement& theEntry)
{
    const VelOrderSource written(theEntry);
    const VelInputSource input = written.inputSource() == INPUT_SOURCE_ANY ? INPUT_SOURCE_NET : written.inputSource();
    return {input, written.deliveryType() == DELIVERY_TYPE_ANY ? DELIVERY_TYPE_POS : written.deliveryType()};
}

/// The later entry that stands where this one stood, -1 for none: then its own words say why nothing is left.
int overriding(const VelAuditPrices& thePrices, int theEntry)
{
    const QDomElement& element = thePrices.elements().at(theEntry);
    const VelDiscountLimit limit(element);
    for (const VelTarmPriceBand& band : thePrices.view(firstSource(element)).bands())
        if (band.discountModel() == limit.discountModel() && band.discountLevel() == limit.level())
            return band.entry();
    return -1;
}

void tellOverridden(const VelAuditDocument& theDocument, const QDomElement& theEntry, const QDomElement& theLater,
                    VelAuditReport& theReport)
{
    VelAuditFinding& finding = theReport.atElement(
        "overridden-price", theDocument, theEntry,
        QStringLiteral("this price never holds: %1 says another for the same model, level and order ways, and the "
                       "later one counts")
            .arg(line(theDocument, theLater)));
    VelAuditPhrases::beside(finding, theDocument, theLater, QString(), QStringLiteral("the price that counts"));
}

/// The kiosk and delivery on site are meant only where both are named.
QString reasonOfNoOffer(const VelOrderSource& theSource)
{
    const bool isKiosk = theSource.inputSource() == INPUT_SOURCE_KIOSK;
    if (isKiosk != (theSource.deliveryType() == DELIVERY_TYPE_ON_SITE))
        return QStringLiteral("this price never holds: the kiosk goes with delivery on site alone, and both must be "
                              "named (input_source=\"4\" delivery_type=\"2\")");
    return QStringLiteral("this price never holds: orderingdetails.xml doesn't offer %1").arg(orderWay(theSource));
}

// ---- offers

class Offers
{
public:
    Offers(const VelAuditDocument& theDocument, const QDateTime& thePresent, VelAuditReport& theReport)
        : myDocument(theDocument), myPresent(thePresent), myReport(theReport)
    {
    }

    void check(const QDomElement& theElement, const VelTarmPriceValue& theValue)
    {
        const bool hasOldPrice = theValue.nonOfferPrice() != -1;
        const bool hasEnd = theElement.hasAttribute(STR_END_OFFER_DATE);
        if (hasEnd && !theElement.hasAttribute(STR_NON_OFFER_PRICE))
            tell("offer-without-old-price", theElement, STR_END_OFFER_DATE,
                 QStringLiteral("an end of an offer without non_offer_price has no effect: there is no old price to "
                                "show"));
        if (hasOldPrice && !hasEnd)
            tell("offer-without-end", theElement, STR_NON_OFFER_PRICE,
                 QStringLiteral("without end_offer_date the old price is never shown"));
        if (hasOldPrice && theValue.endOfferDate().isValid() && hasEnd)
            checkEnd(theElement, theValue);
        if (hasOldPrice && theValue.price() >= theValue.nonOfferPrice())
            tell("offer-not-cheaper", theElement, STR_PRICE,
                 QStringLiteral("the offer costs %1, the old price beside it %2: it isn't cheaper")
                     .arg(cents(theValue.price()))
                     .arg(theValue.nonOfferPrice()));
    }

private:
    void checkEnd(const QDomElement& theElement, const VelTarmPriceValue& theValue)
    {
        if (theValue.endOfferDate() <= myPresent)
            tell("offer-over", theElement, STR_END_OFFER_DATE,
                 QStringLiteral("the offer is over: the old price is no longer shown, and the price stays %1 "
                                "until it is changed here")
                     .arg(cents(theValue.price())));
    }

    void tell(const char* theRule, const QDomElement& theElement, const QString& theAttribute,
              const QString& theMessage)
    {
        myReport.atValue(theRule, myDocument, theElement, theAttribute, theMessage);
    }

    const VelAuditDocument& myDocument;
    const QDateTime& myPresent;
    VelAuditReport& myReport;
};

// ---- products

/// Books, calendars, cards and gifts are known by their type, of which the first line counts.
void checkType(const VelAuditDocument& theDocument, const VelAuditPrices& thePrices, VelAuditReport& theReport)
{
    const QString type = thePrices.product().orderTxtType();
    if (!VelProductType(type).isUnknown())
        return;
    const QDomElement& article = thePrices.entry().myElement;
    const QDomElement lines = article.firstChildElement(STR_ORDER_TXT_LINES);
    for (const QDomElement& each : VelChildElements(lines))
        if (each.text().startsWith(VelProductAbstract::STR_TYPE, Qt::CaseInsensitive)) {
            theReport.atText("unknown-product-type", theDocument, each,
                             QStringLiteral("no product type is called %1: the article is dropped")
                                 .arg(VelAuditWords::quoted(type)));
            return;
        }
    theReport.atElement("unknown-product-type", theDocument, lines.isNull() ? article : lines,
                        QStringLiteral("%1 has no line TYPE= and so no product type: it is dropped")
                            .arg(VelAuditPhrases::entry(thePrices.entry())));
}

void checkPages(const VelAuditDocument& theDocument, const QDomElement& theArticle, VelAuditReport& theReport)
{
    const int least = VelXMLParser::intAttribute(theArticle, STR_MIN_PAGES, 0);
    const int most = VelXMLParser::intAttribute(theArticle, STR_MAX_PAGES, 0);
    if (least > 0 && !theArticle.hasAttribute(STR_MAX_PAGES))
        theReport.atValue("pages-without-end", theDocument, theArticle, STR_MIN_PAGES,
                          QStringLiteral("min_pages stands without max_pages, which counts as 0: no number of pages is "
                                         "allowed"));
    else if (most < least)
        theReport.atValue(
            "limits-crossed", theDocument, theArticle, STR_MAX_PAGES,
            QStringLiteral("at most %1 pages and at least %2: no number of pages is allowed").arg(most).arg(least));
    if (most > least && theArticle.hasAttribute(STR_MAX_PAGES) &&
        VelXMLParser::intAttribute(theArticle, STR_PAGE_STEP, 0) <= 0)
        theReport.atValue("pages-without-step", theDocument, theArticle, STR_PAGE_STEP,
                          QStringLiteral("from %1 to %2 pages, and no page_step to go by: the number of pages is fixed")
                              .arg(least)
                              .arg(most));
}

void checkResolutions(const VelAuditDocument& theDocument, const QDomElement& theSize, VelAuditReport& theReport)
{
    const int green = VelXMLParser::intAttribute(theSize, STR_DPI_GREEN, DPI_GREEN);
    const int yellow = VelXMLParser::intAttribute(theSize, STR_DPI_YELLOW, DPI_YELLOW);
    if (green < yellow)
        theReport.atValue("limits-crossed", theDocument, theSize, STR_DPI_GREEN,
                          QStringLiteral("green from %1 and yellow from %2 dpi on: no picture is rated yellow")
                              .arg(green)
                              .arg(yellow));
}

} // namespace

void VelAuditShopChecks::checkEffects(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices,
                                      VelAuditReport& theReport)
{
    const VelAuditDocument& document = *theCatalog.priceList();
    const QVector<Fate> all = fates(theCatalog, thePrices);
    for (int entry = 0; entry < all.size(); ++entry) {
        const QDomElement& element = thePrices.elements().at(entry);
        if (all[entry].myBand && !all[entry].myIsOffered) {
            const bool isByKiosk = element.hasAttribute(STR_INPUT_SOURCE);
            theReport.atValue("price-not-on-offer", document, element, isByKiosk ? STR_INPUT_SOURCE : STR_DELIVERY_TYPE,
                              reasonOfNoOffer(all[entry].mySource));
        }
        const int later = all[entry].myBand ? -1 : overriding(thePrices, entry);
        if (later >= 0)
            tellOverridden(document, element, thePrices.elements().at(later), theReport);
    }
}

void VelAuditShopChecks::checkOffers(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices,
                                     const QDateTime& thePresent, VelAuditReport& theReport)
{
    Offers offers(*theCatalog.priceList(), thePresent, theReport);
    for (const QDomElement& element : thePrices.elements())
        if (element.hasAttribute(STR_NON_OFFER_PRICE) || element.hasAttribute(STR_END_OFFER_DATE))
            offers.check(element, VelTarmPriceValue(element));
}

void VelAuditShopChecks::checkProduct(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices,
                                      VelAuditReport& theReport)
{
    const VelAuditDocument& document = *theCatalog.priceList();
    const VelAuditCatalog::Entry& entry = thePrices.entry();
    checkResolutions(document, entry.myElement.firstChildElement(STR_SIZE), theReport);
    if (entry.myIsUnknownBook)
        theReport.atValue("unknown-book", document, entry.myElement, STR_ID,
                          QStringLiteral("the application has no book or calendar %1 among those that it knows for "
                                         "arrangement %2: the article is dropped")
                              .arg(VelAuditWords::quoted(entry.myElement.attribute(STR_ID)),
                                   VelAuditWords::quoted(entry.myElement.attribute(STR_ARRANGEMENT))));
    if (!entry.myIsPrintFun)
        return;
    checkType(document, thePrices, theReport);
    checkPages(document, entry.myElement, theReport);
}
