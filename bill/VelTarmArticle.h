#ifndef VELTARMARTICLE_H
#define VELTARMARTICLE_H

#include "bill/VelTarmOrderTxtContent.h"
#include "ordering/VelTarmShippingTimeList.h"
#include "price/VelTarmPriceInfo.h"

#include <QDateTime>
#include <QDomElement>
#include <QSet>
#include <QSize>
#include <QString>
#include <QStringList>

#include <cstddef>

class VelOrderStatistic;
class VelProductAbstract;
class VelTarmBill;

/**
 * The price-list face of one product: identity, print geometry, prices, order-text lines and shipping times, all read
 * from one element of the price list. Amounts are whole cents; -1 means that there is no price.
 */
class VelTarmArticle
{
    Q_DISABLE_COPY(VelTarmArticle)

public:
    /// The product is borrowed and owns the article.
    VelTarmArticle(VelProductAbstract* theProduct, const QDomElement& theElement);

    /// Articles lie side by side, see VelProductStorage.
    static void* operator new(std::size_t theSize);
    static void operator delete(void* theObject, std::size_t theSize);

    /// Reads a further element of the article; pointers to the article stay valid.
    void update(const QDomElement& theElement);

    /// The first child `size`; without one nothing changes, otherwise every missing part takes its default afresh.
    void updateSizeInformation(const QDomElement& theElement);

    /// Without `name` the name stays, but without `editor_name` and `id` those are cleared; this is meant.
    void updateNameInformation(const QDomElement& theElement);
    void updateShippingTimeInformation(const QDomElement& theElement);

    /// Attribute `id`, 0 when missing.
    int articleID() const { return myArticleID; }

    /// How often the id of any article has changed in this process: an index by id compares it to know whether it is
    /// still good.
    static unsigned idChanges() { return myIdChanges; }

    /// Attribute `name`: the internal name; null until an element has one.
    QString name() const { return myName; }

    /// Attribute `editor_name`: the name shown in the editor and on bills.
    QString editorName() const { return myEditorName; }

    /// Millimetres, (0, 0) when the document says none.
    QSize sizeInMM() const { return mySizeInMM; }

    /// The print size at dpi().
    QSize sizeInPixels() const;

    /// Pixels per inch: print resolution, lowest green and lowest yellow one (300, 150, 90 by default).
    int dpi() const { return myDpi; }
    int dpiForGreen() const { return myDpiForGreen; }
    int dpiForYellow() const { return myDpiForYellow; }

    /// Rates an image of so many pixels per millimetre: -1 not rated (0 or below), 0 red, 1 yellow, 2 green.
    int qualityOnScaleForPPMM(double thePPMM) const;

    /// Whether there is a price at a point of sale, from CD or online.
    bool canOrderPOS() const;
    bool shippingTimesEnabled() const { return !myShippingTimes.isEmpty(); }

    /// Mind that billing sum and bill change places on the way to VelTarmPriceInfo::priceFor.
    int priceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum, VelTarmBill* theBill,
                 const VelOrderStatistic* theStatistic) const;
    int transferPriceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                         const VelOrderStatistic* theStatistic) const;
    int unitTransferPriceFor(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic) const;
    /// The entry of the plain price, the invalid one without; never null. Both transfer prices are read from it.
    const VelTarmPriceValue* basePriceValue(const VelTarmPriceKey& theKey) const
    {
        return myPriceInfo.basePriceValue(theKey);
    }

    /// What all prices are reckoned from; valid until the next element is read.
    const VelTarmPriceStore& priceStore() const { return myPriceInfo.store(); }
    void prefetchPrices(const VelOrderSource& theSource) const { myPriceInfo.prefetch(theSource); }
    int baseTransferPrice(const VelTarmPriceKey& theKey) const;
    int unitTransferPrice(const VelTarmPriceKey& theKey) const;
    VelTransferModel transferModel() const;

    /// The level that the count reaches; any number but 0 asks for packages only.
    int discountLevel(const VelTarmPriceKey& theKey, int theCount, int thePackageOnly) const;
    QSet<VelDiscountLimit> discountLimits(const VelTarmPriceKey& theKey) const;
    int priceAtBound(const VelTarmPriceKey& theKey, const VelDiscountLimit& theLimit) const;
    int nonOfferPrice(const VelTarmPriceKey& theKey) const;
    QDateTime endOfferDate(const VelTarmPriceKey& theKey) const;

    VelTarmShippingTime shippingTime(VelDeliveryType theDeliveryType, VelExpressType theExpressType) const
    {
        return myShippingTimes.shippingTime(theDeliveryType, theExpressType);
    }
    bool isExpressable(VelDeliveryType theDeliveryType, VelExpressType theExpressType) const
    {
        return myShippingTimes.isExpressable(theDeliveryType, theExpressType);
    }

    QString orderTxtHead() const;
    QString orderTxtValue(const QString& theKey) const;

    /// The lines between head and description, joined by newlines.
    QString orderTxtLines() const;

    /// The head line, also when it is empty, all lines, and the description line with name().
    QStringList toOrderTxt() const;

private:
    static constexpr int DEFAULT_DPI = 300;
    static constexpr int DEFAULT_DPI_FOR_GREEN = 150;
    static constexpr int DEFAULT_DPI_FOR_YELLOW = 90;

    static unsigned myIdChanges;

    VelTarmPriceInfo myPriceInfo;
    VelTarmOrderTxtContent myOrderTxtContent;
    VelTarmShippingTimeList myShippingTimes;
    QSize mySizeInMM = QSize(0, 0);
    int myDpi = DEFAULT_DPI;
    int myDpiForGreen = DEFAULT_DPI_FOR_GREEN;
    int myDpiForYellow = DEFAULT_DPI_FOR_YELLOW;
    QString myName;
    QString myEditorName;
    int myArticleID = 0;
};

#endif
