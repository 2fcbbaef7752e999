#include "insight/VelShopReading.h"

#include "insight/VelVocabularies.h"
#include "price/VelTarmPriceBand.h"
#include "price/VelTarmPriceView.h"
#include "product/VelPrintResolutions.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductPrintFun.h"

#include <QSize>

#include <algorithm>

namespace {

const QString STR_ID = QStringLiteral("id");
const QString STR_NAME = QStringLiteral("name");
const QString STR_EDITOR_NAME = QStringLiteral("editor_name");
const QString STR_GROUP = QStringLiteral("group");
const QString STR_ARRANGEMENT = QStringLiteral("arrangement");
const QString STR_MIN_PAGES = QStringLiteral("min_pages");
const QString STR_MAX_PAGES = QStringLiteral("max_pages");
const QString STR_PAGE_STEP = QStringLiteral("page_step");
const QString STR_PRODUCT_CLASS = QStringLiteral("product_class");
const QString STR_LINKED_ARTICLES = QStringLiteral("linked_articles");
const QString STR_MODEL = QStringLiteral("model");
const QString STR_WIDTH = QStringLiteral("width");
const QString STR_HEIGHT = QStringLiteral("height");
const QString STR_DPI = QStringLiteral("dpi");
const QString STR_DPI_GREEN = QStringLiteral("dpi_green");
const QString STR_DPI_YELLOW = QStringLiteral("dpi_yellow");
const QString STR_HEAD = QStringLiteral("head");
const QString STR_LINE = QStringLiteral("line");
const QString STR_ORDER_TXT_LINES = QStringLiteral("order_txt_lines");
const QString STR_DAYS = QStringLiteral("days");
const QString STR_TRANSFER_BASE_PRICE = QStringLiteral("transfer_base_price");
const QString STR_TRANSFER_UNIT_PRICE = QStringLiteral("transfer_unit_price");
const QString STR_NON_OFFER_PRICE = QStringLiteral("non_offer_price");
const QString STR_END_OFFER_DATE = QStringLiteral("end_offer_date");

const int NO_OLD_PRICE = -1;

/// Collects the fields of one element, in the order of the document.
class FieldReader
{
public:
    explicit FieldReader(const VelProductAbstract& theProduct) : myProduct(theProduct) { myFields.reserve(24); }

    QVector<VelShopField> ofProduct()
    {
        addNames();
        addKind();
        addSize();
        addOrderText();
        addShippingTimes();
        for (const VelOrderSource& source : VelShopReading::orderSources())
            addBands(source);
        return myFields;
    }

    /// Size, order text, shipping times, offer and arrangement of a fee have no effect.
    QVector<VelShopField> ofFee(bool theIsTransfer)
    {
        add(STR_ID, myProduct.articleID());
        addNames();
        if (theIsTransfer)
            add(STR_MODEL, myProduct.transferModel() == TRANSFER_MODEL_2 ? TRANSFER_MODEL_2 : TRANSFER_MODEL_1);
        return myFields;
    }

private:
    void add(const QString& theName, const QVariant& theValue, const VelShopPlace& thePlace = VelShopPlace())
    {
        myFields.append({theName, thePlace, theValue});
    }

    void addNames()
    {
        add(STR_NAME, text(myProduct.name()));
        add(STR_EDITOR_NAME, text(myProduct.editorName()));
    }

    /// A null text reads as an empty one.
    static QString text(const QString& theText) { return theText.isNull() ? QLatin1String("") : theText; }

    void addKind()
    {
        static const VelVocabulary arrangements = VelVocabularies::arrangements();
        add(STR_GROUP, myProduct.shippingGroupId());
        if (!myProduct.isAddOn()) // of an add-on it has no effect
            add(STR_ARRANGEMENT, VelShopReading::word(arrangements, myProduct.arrangement()));
        if (myProduct.isPrintFunProduct())
            addPages(static_cast<const VelProductPrintFun&>(myProduct));
        if (myProduct.isProductClass(PRODUCT_CLASS_ADD_ON))
            addLinks(static_cast<const VelProductAddOn&>(myProduct));
    }

    void addPages(const VelProductPrintFun& theProduct)
    {
        add(STR_MIN_PAGES, theProduct.minPages());
        add(STR_MAX_PAGES, theProduct.maxPages());
        add(STR_PAGE_STEP, theProduct.pageIncrement());
    }

    /// Which articles an add-on fits is asked one by one: neither their order nor a second mention counts.
    void addLinks(const VelProductAddOn& theAddOn)
    {
        add(STR_PRODUCT_CLASS, text(theAddOn.productClass()));
        QList<int> ids = theAddOn.articleIDs();
        std::sort(ids.begin(), ids.end());
        ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
        QVariantList links;
        for (const int id : qAsConst(ids))
            links.append(id);
        add(STR_LINKED_ARTICLES, links);
    }

    void addSize()
    {
        add(STR_WIDTH, myProduct.printSizeInMM().width());
        add(STR_HEIGHT, myProduct.printSizeInMM().height());
        add(STR_DPI, myProduct.printDPI());
        const VelPrintResolutions resolutions(myProduct);
        add(STR_DPI_GREEN, resolutions.green());
        add(STR_DPI_YELLOW, resolutions.yellow());
    }

    /// Each line by its key; a line without one as it stands.
    void addOrderText()
    {
        QStringList lines = myProduct.toOrderTxt();
        add(STR_HEAD, text(lines.takeFirst()));
        lines.removeLast(); // the description is the name
        QVariantList keys;
        for (const QString& line : qAsConst(lines)) {
            const int end = static_cast<int>(line.indexOf(QLatin1Char('=')));
            const QString key = end < 0 ? STR_LINE : line.left(end);
            VelShopPlace place = VelShopPlace::of(STR_ORDER_TXT_LINES);
            const int further = static_cast<int>(keys.count(key)); // the first line of a key is the one that is found
            if (further > 0)
                place.myId = further + 1;
            add(key, end < 0 ? line : line.mid(end + 1), place);
            keys.append(key);
        }
        add(STR_ORDER_TXT_LINES, keys);
        myFields.last().myIsOrder = true;
    }

    void addShippingTimes()
    {
        if (!myProduct.shippingTimesEnabled())
            return;
        for (const VelDeliveryType delivery :
             {DELIVERY_TYPE_ANY, DELIVERY_TYPE_POS, DELIVERY_TYPE_MAILORDER, DELIVERY_TYPE_ON_SITE})
            for (const VelExpressTypeEnum express :
                 {ExpressableType_STANDARD, ExpressableType_EXPRESS_1, ExpressableType_EXPRESS_2})
                addShippingTime(delivery, express);
    }

    void addShippingTime(VelDeliveryType theDelivery, VelExpressTypeEnum theExpress)
    {
        const VelTarmShippingTime time = myProduct.shippingTime(theDelivery, theExpress);
        if (!time.isValid())
            return;
        QString days = time.minDays() < 0 ? QStringLiteral("") : QString::number(time.minDays());
        if (time.varies())
            days += QLatin1Char('-') + QString::number(time.maxDays());
        VelShopPlace place;
        place.myDeliveryType = theDelivery;
        place.myExpressType = theExpress;
        add(STR_DAYS, days, place);
    }

    /// What an entry holds beside its price: shipping by products stands in the plain price, an offer in each.
    void addBands(const VelOrderSource& theSource)
    {
        const VelTarmPriceBands bands = VelTarmPriceView(myProduct, theSource).bands();
        for (const VelTarmPriceBand& band : bands) {
            VelShopPlace place = VelShopPlace::of(theSource);
            if (band.discountModel() == DISCOUNT_MODEL_BULK && band.discountLevel() == 0)
                addTransferPrices(band.value(), place);
            place.myDiscountModel = band.discountModel();
            place.myDiscountLevel = band.discountLevel();
            addOffer(band.value(), place);
        }
    }

    void addTransferPrices(const VelTarmPriceValue& theValue, const VelShopPlace& thePlace)
    {
        add(STR_TRANSFER_BASE_PRICE, theValue.baseTransferPrice(), thePlace);
        add(STR_TRANSFER_UNIT_PRICE, theValue.unitTransferPrice(), thePlace);
    }

    void addOffer(const VelTarmPriceValue& theValue, const VelShopPlace& thePlace)
    {
        if (theValue.nonOfferPrice() != NO_OLD_PRICE)
            add(STR_NON_OFFER_PRICE, theValue.nonOfferPrice(), thePlace);
        const QDateTime end = theValue.endOfferDate();
        if (end.isValid() && end != VelTarmPriceValue::invalidPrice()->endOfferDate())
            add(STR_END_OFFER_DATE, end.toLocalTime().toString(Qt::ISODate), thePlace);
    }

    const VelProductAbstract& myProduct;
    QVector<VelShopField> myFields;
};

} // namespace

const QList<VelOrderSource>& VelShopReading::orderSources()
{
    static const QList<VelOrderSource> sources{VelOrderSource::onlinePointOfSale(), VelOrderSource::onlineMailOrder(),
                                               VelOrderSource::cdPointOfSale(), VelOrderSource::cdMailOrder(),
                                               VelOrderSource::kioskOnSite()};
    return sources;
}

QString VelShopReading::word(const VelVocabulary& theVocabulary, int theValue)
{
    QStringList words;
    for (const VelVocabulary::Word& word : theVocabulary.myWords)
        if (word.myValue == theValue || (word.myValue > 0 && (word.myValue & theValue) == word.myValue))
            words.append(word.myText);
    return words.isEmpty() ? QStringLiteral("") : words.join(QStringLiteral(", "));
}

QVector<VelShopField> VelShopReading::fields(const VelProductAbstract& theProduct, VelShopEntry::Kind theKind)
{
    FieldReader reader(theProduct);
    return theKind == VelShopEntry::ARTICLE || theKind == VelShopEntry::ADD_ON
               ? reader.ofProduct()
               : reader.ofFee(theKind == VelShopEntry::TRANSFER);
}
