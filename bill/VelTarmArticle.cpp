#include "bill/VelTarmArticle.h"

#include "frame/VelArithmetic.h"
#include "frame/VelKeptTexts.h"
#include "product/VelProductStorage.h"
#include "sibling/VelXMLParser.h"

unsigned VelTarmArticle::myIdChanges = 0;

namespace {

const QString STR_NAME = QStringLiteral("name");
const QString STR_EDITOR_NAME = QStringLiteral("editor_name");
const QString STR_ID = QStringLiteral("id");
const QString STR_SIZE = QStringLiteral("size");
const QString STR_DPI = QStringLiteral("dpi");
const QString STR_DPI_GREEN = QStringLiteral("dpi_green");
const QString STR_DPI_YELLOW = QStringLiteral("dpi_yellow");
const QString STR_DESCRIPTION = QStringLiteral("DESCRIPTION=");

const double MM_PER_INCH = 25.4;

} // namespace

VelTarmArticle::VelTarmArticle(VelProductAbstract* theProduct, const QDomElement& theElement)
    : myPriceInfo(theProduct, theElement), myOrderTxtContent(theElement)
{
    updateSizeInformation(theElement);
    updateNameInformation(theElement);
    updateShippingTimeInformation(theElement);
}

void* VelTarmArticle::operator new(std::size_t theSize)
{
    return VelProductStorage::allocate(VelProductStorage::SHELF_ARTICLES, theSize);
}

void VelTarmArticle::operator delete(void* theObject, std::size_t theSize)
{
    VelProductStorage::release(theObject, theSize);
}

// ---- queries

QSize VelTarmArticle::sizeInPixels() const
{
    const double factor = myDpi / MM_PER_INCH; // formed first: the rounding depends on the order
    return QSize(VelArithmetic::rounded(mySizeInMM.width() * factor),
                 VelArithmetic::rounded(mySizeInMM.height() * factor));
}

int VelTarmArticle::qualityOnScaleForPPMM(double thePPMM) const
{
    if (thePPMM <= 0.0)
        return -1;
    const double resolution = thePPMM * MM_PER_INCH;
    if (resolution >= myDpiForGreen) // tested first, even where it lies below the yellow bound
        return 2;
    return resolution >= myDpiForYellow ? 1 : 0;
}

bool VelTarmArticle::canOrderPOS() const
{
    const auto hasPrice = [this](const VelOrderSource& theSource) {
        return priceFor(VelTarmPriceKey(theSource, -1, DISCOUNT_MODEL_UNDEFINED), 1, 0, nullptr, nullptr) > -1;
    };
    return hasPrice(VelOrderSource::cdPointOfSale()) || hasPrice(VelOrderSource::onlinePointOfSale());
}

int VelTarmArticle::priceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum, VelTarmBill* theBill,
                             const VelOrderStatistic* theStatistic) const
{
    return myPriceInfo.priceFor(theKey, theCount, theBill, theBillingSum, theStatistic);
}

int VelTarmArticle::transferPriceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                     const VelOrderStatistic* theStatistic) const
{
    return myPriceInfo.transferPriceFor(theKey, theCount, theBillingSum, theStatistic);
}

int VelTarmArticle::unitTransferPriceFor(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic) const
{
    return myPriceInfo.unitTransferPriceInTransferModel2(theKey, theStatistic);
}

int VelTarmArticle::baseTransferPrice(const VelTarmPriceKey& theKey) const
{
    return myPriceInfo.baseTransferPrice(theKey);
}

int VelTarmArticle::unitTransferPrice(const VelTarmPriceKey& theKey) const
{
    return myPriceInfo.unitTransferPrice(theKey);
}

VelTransferModel VelTarmArticle::transferModel() const
{
    return myPriceInfo.transferModel();
}

int VelTarmArticle::discountLevel(const VelTarmPriceKey& theKey, int theCount, int thePackageOnly) const
{
    return myPriceInfo.bestDiscountLevel(theKey, theCount, thePackageOnly != 0);
}

QSet<VelDiscountLimit> VelTarmArticle::discountLimits(const VelTarmPriceKey& theKey) const
{
    return myPriceInfo.discountLimits(theKey);
}

int VelTarmArticle::priceAtBound(const VelTarmPriceKey& theKey, const VelDiscountLimit& theLimit) const
{
    return myPriceInfo.priceAtBound(theKey, theLimit);
}

int VelTarmArticle::nonOfferPrice(const VelTarmPriceKey& theKey) const
{
    return myPriceInfo.nonOfferPrice(theKey);
}

QDateTime VelTarmArticle::endOfferDate(const VelTarmPriceKey& theKey) const
{
    return myPriceInfo.endOfferDate(theKey);
}

QString VelTarmArticle::orderTxtHead() const
{
    return myOrderTxtContent.head();
}

QString VelTarmArticle::orderTxtValue(const QString& theKey) const
{
    return myOrderTxtContent.orderTxtValue(theKey);
}

QString VelTarmArticle::orderTxtLines() const
{
    return myOrderTxtContent.lines().join(QLatin1Char('\n'));
}

QStringList VelTarmArticle::toOrderTxt() const
{
    return QStringList(myOrderTxtContent.head()) + myOrderTxtContent.lines() + QStringList(STR_DESCRIPTION + myName);
}

void VelTarmArticle::update(const QDomElement& theElement)
{
    myPriceInfo.update(theElement);
    myOrderTxtContent.update(theElement);
    updateSizeInformation(theElement);
    updateNameInformation(theElement);
    updateShippingTimeInformation(theElement);
}

void VelTarmArticle::updateSizeInformation(const QDomElement& theElement)
{
    const QDomElement size = theElement.firstChildElement(STR_SIZE);
    if (size.isNull())
        return;
    mySizeInMM = VelXMLParser::readSize(size);
    myDpi = VelXMLParser::intAttribute(size, STR_DPI, DEFAULT_DPI);
    myDpiForGreen = VelXMLParser::intAttribute(size, STR_DPI_GREEN, DEFAULT_DPI_FOR_GREEN);
    myDpiForYellow = VelXMLParser::intAttribute(size, STR_DPI_YELLOW, DEFAULT_DPI_FOR_YELLOW);
}

void VelTarmArticle::updateNameInformation(const QDomElement& theElement)
{
    myName = VelKeptTexts::kept(VelXMLParser::attribute(theElement, STR_NAME, myName));
    myEditorName = VelKeptTexts::kept(VelXMLParser::attribute(theElement, STR_EDITOR_NAME, QStringLiteral("")));
    const int articleID = VelXMLParser::intAttribute(theElement, STR_ID, 0);
    if (articleID != myArticleID)
        ++myIdChanges;
    myArticleID = articleID;
}

void VelTarmArticle::updateShippingTimeInformation(const QDomElement& theElement)
{
    myShippingTimes.update(theElement.firstChildElement(VelTarmShippingTimeList::STR_SHIPPING_TIMES));
}
