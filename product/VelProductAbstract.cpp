#include "product/VelProductAbstract.h"

#include "bill/VelTarmArticle.h"
#include "frame/EnumHelper.h"
#include "frame/VelArithmetic.h"
#include "frame/VelEnumFlags.h"
#include "frame/VelTarmGlobalStatus.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductGroupConverter.h"
#include "product/VelProductStorage.h"
#include "sibling/VelXMLParser.h"

#include <QObject>

#include <algorithm>
#include <limits>
#include <vector>

const QString VelProductAbstract::STR_TYPE = QStringLiteral("TYPE=");
const QString VelProductAbstract::STR_SCALE = QStringLiteral("SCALE=");
const QString VelProductAbstract::STR_SALESLINE = QStringLiteral("SALESLINE=");
const QString VelProductAbstract::STR_DESIGN = QStringLiteral("[DESIGN]");
const QString VelProductAbstract::STR_FRAME = QStringLiteral("[FRAME]");
const QString VelProductAbstract::STR_WALL_HOLDER = QStringLiteral("[WALL_HOLDER]");
const QString VelProductAbstract::STR_PAGE_PACKAGE = QStringLiteral("[PAGES]");

namespace {

const QString STR_GROUP = QStringLiteral("group");
const QString STR_ARRANGEMENT = QStringLiteral("arrangement");
const QString STR_ADD_ON = QStringLiteral("add_on");
const QString STR_BORDER = QStringLiteral("BORDER");
const QString STR_WITH_BORDER = QStringLiteral("1");

const VelProductGroupEnum FOTO_GROUPS =
    static_cast<VelProductGroupEnum>(PRODUCT_GROUP_FOTO | PRODUCT_GROUP_PREMIUMFOTO | PRODUCT_GROUP_POSTER |
                                     PRODUCT_GROUP_ZQNFOTO | PRODUCT_GROUP_PROFESSIONALFOTO);

/// A key for each of the four standard ways of ordering.
std::vector<VelTarmPriceKey> standardKeys()
{
    std::vector<VelTarmPriceKey> keys;
    for (const VelOrderSource& source : {VelOrderSource::cdPointOfSale(), VelOrderSource::cdMailOrder(),
                                         VelOrderSource::onlinePointOfSale(), VelOrderSource::onlineMailOrder()})
        keys.emplace_back(source, -1, DISCOUNT_MODEL_UNDEFINED);
    return keys;
}

bool isLandscape(const QSize& theSize)
{
    return theSize.width() > theSize.height();
}

} // namespace

/// The element is read twice at first, as an update follows the article's own reading. Only the shipping times show
/// it: an invalid one is told twice. So they alone are read again.
VelProductAbstract::VelProductAbstract(const QDomElement& theElement, VelProductClass theProductClass)
    : myProductClass(theProductClass)
{
    myArticle = new VelTarmArticle(this, theElement);
    myArticle->updateShippingTimeInformation(theElement);
    updateOwnInformation(theElement);
}

VelProductAbstract::~VelProductAbstract()
{
    delete myArticle;
}

void* VelProductAbstract::operator new(std::size_t theSize)
{
    return VelProductStorage::allocate(VelProductStorage::SHELF_MAIN_PRODUCTS, theSize);
}

void VelProductAbstract::operator delete(void* theObject, std::size_t theSize)
{
    VelProductStorage::release(theObject, theSize);
}

VelProductAbstract* VelProductAbstract::nullProduct()
{
    static VelProductAbstract* myNull = nullptr;
    if (!myNull)
        myNull = new VelProductAbstract(QDomElement(), PRODUCT_CLASS_NONE);
    return myNull;
}

int VelProductAbstract::price() const
{
    return price(VelTarmGlobalStatus::instance()->priceKey(), 1, 0);
}

int VelProductAbstract::price(const VelTarmPriceKey& theKey, int theCount, int theBillingSum) const
{
    return myArticle->priceFor(theKey, theCount, theBillingSum, nullptr, nullptr);
}

int VelProductAbstract::minPrice(bool theAllLimits) const
{
    int lowest = std::numeric_limits<int>::max();
    for (const VelTarmPriceKey& key : standardKeys())
        lowest = qMin(lowest, minPriceFor(key, theAllLimits));
    return lowest;
}

int VelProductAbstract::minPriceFor(const VelTarmPriceKey& theKey, bool theAllLimits) const
{
    int lowest = std::numeric_limits<int>::max();
    const QSet<VelDiscountLimit> limits = discountLimits(theKey);
    for (const VelDiscountLimit& limit : limits) {
        const int price = priceAtBound(theKey, limit);
        if (price >= 0)
            lowest = qMin(lowest, price);
        if (!theAllLimits)
            break;
    }
    return lowest;
}

int VelProductAbstract::priceFirstFit() const
{
    int highest = std::numeric_limits<int>::min();
    for (const VelTarmPriceKey& key : standardKeys())
        highest = qMax(highest, price(key, 1, 1));
    return highest;
}

QSize VelProductAbstract::printPixelSize(const QSize& theReference) const
{
    const QSize size = printPixelSize();
    const bool mustTurn = isFotoProduct() && isLandscape(size) != isLandscape(theReference);
    return mustTurn ? size.transposed() : size;
}

bool VelProductAbstract::isFotoProduct() const
{
    return myProductGroup.matches(FOTO_GROUPS);
}

QString VelProductAbstract::name() const
{
    const QString name = myArticle->name();
    return myIsDeprecated ? name + QObject::tr(" (nicht mehr lieferbar)") : name;
}

QString VelProductAbstract::isoFileNameSuggestion() const
{
    const QString head = orderTxtHead().remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    return head.isEmpty() ? orderTxtType() : head;
}

bool VelProductAbstract::isOrderable() const
{
    return !myIsDeprecated && VelTarmShippingGroupManager::instance()->shippingGroup(myShippingGroupId);
}

bool VelProductAbstract::canHaveBorderColor() const
{
    return orderTxtValue(STR_BORDER) == STR_WITH_BORDER;
}

int VelProductAbstract::countPrintPixels() const
{
    const QSize size = printPixelSize();
    return VelArithmetic::product(size.width(), size.height());
}

int VelProductAbstract::articleID() const
{
    return myArticle->articleID();
}

QStringList VelProductAbstract::toOrderTxt() const
{
    return myArticle->toOrderTxt();
}

QSize VelProductAbstract::printPixelSize() const
{
    return myArticle->sizeInPixels();
}

QSize VelProductAbstract::printSizeInMM() const
{
    return myArticle->sizeInMM();
}

int VelProductAbstract::printDPI() const
{
    return myArticle->dpi();
}

QString VelProductAbstract::editorName() const
{
    return myArticle->editorName();
}

QString VelProductAbstract::orderTxtHead() const
{
    return myArticle->orderTxtHead();
}

QString VelProductAbstract::orderTxtValue(const QString& theKey) const
{
    return myArticle->orderTxtValue(theKey);
}

bool VelProductAbstract::orderableViaPOS() const
{
    return myArticle->canOrderPOS();
}

int VelProductAbstract::priceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum, VelTarmBill* theBill,
                                 const VelOrderStatistic* theStatistic) const
{
    return myArticle->priceFor(theKey, theCount, theBillingSum, theBill, theStatistic);
}

int VelProductAbstract::transferPriceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                         const VelOrderStatistic* theStatistic) const
{
    return myArticle->transferPriceFor(theKey, theCount, theBillingSum, theStatistic);
}

int VelProductAbstract::unitTransferPriceFor(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic) const
{
    return myArticle->unitTransferPriceFor(theKey, theStatistic);
}

QSet<VelDiscountLimit> VelProductAbstract::discountLimits(const VelTarmPriceKey& theKey) const
{
    return myArticle->discountLimits(theKey);
}

int VelProductAbstract::priceAtBound(const VelTarmPriceKey& theKey, const VelDiscountLimit& theLimit) const
{
    return myArticle->priceAtBound(theKey, theLimit);
}

VelTransferModel VelProductAbstract::transferModel() const
{
    return myArticle->transferModel();
}

int VelProductAbstract::baseTransferPrice(const VelTarmPriceKey& theKey) const
{
    return myArticle->baseTransferPrice(theKey);
}

int VelProductAbstract::unitTransferPrice(const VelTarmPriceKey& theKey) const
{
    return myArticle->unitTransferPrice(theKey);
}

int VelProductAbstract::nonOfferPrice(const VelTarmPriceKey& theKey) const
{
    return myArticle->nonOfferPrice(theKey);
}

QDateTime VelProductAbstract::endOfferDate(const VelTarmPriceKey& theKey) const
{
    return myArticle->endOfferDate(theKey);
}

bool VelProductAbstract::shippingTimesEnabled() const
{
    return myArticle->shippingTimesEnabled();
}

VelTarmShippingTime VelProductAbstract::shippingTime(VelDeliveryType theDeliveryType,
                                                     VelExpressType theExpressType) const
{
    return myArticle->shippingTime(theDeliveryType, theExpressType);
}

bool VelProductAbstract::isExpressable(VelDeliveryType theDeliveryType, VelExpressType theExpressType) const
{
    return myArticle->isExpressable(theDeliveryType, theExpressType);
}

int VelProductAbstract::qualityOnScaleForPPMM(double thePPMM) const
{
    return myArticle->qualityOnScaleForPPMM(thePPMM);
}

QDebug operator<<(QDebug theDebug, const VelProductAbstract& theProduct)
{
    theDebug << "Name : " << theProduct.name();
    theDebug << "Full Qualified Name :" << theProduct.fullQualifiedName();
    theDebug << "Article ID : " << theProduct.articleID();
    theDebug << "Shipping Group ID : " << theProduct.shippingGroupId();
    theDebug << "Product Group : "
             << joinedBitKeys(EnumHelper::globalMapProductGroupEnumString, theProduct.productGroup().value());
    theDebug << "Product Arrangement : "
             << joinedBitKeys(EnumHelper::globalMapProductArrangementString, theProduct.arrangement());
    return theDebug;
}

void VelProductAbstract::update(const QDomElement& theElement)
{
    myArticle->update(theElement);
    updateOwnInformation(theElement);
}

void VelProductAbstract::updateOwnInformation(const QDomElement& theElement)
{
    myShippingGroupId = VelXMLParser::intAttribute(theElement, STR_GROUP, -1);
    myIsAddOn = theElement.nodeName() == STR_ADD_ON;
    myArrangement =
        EnumHelper::decodeProductArrangement(VelXMLParser::attribute(theElement, STR_ARRANGEMENT, QString()));
    myProductGroup =
        VelProductGroupConverter::detectProductGroup(myIsAddOn, myArrangement, myShippingGroupId, orderTxtSalesline());
    myIsDeprecated = theElement.isNull();
}
