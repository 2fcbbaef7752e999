#include "host/VelshopCart.h"

#include "bill/VelProductPriceCalculator.h"
#include "frame/VelTarmGlobalStatus.h"
#include "host/VelshopArticle.h"
#include "host/VelshopJsonReader.h"
#include "host/VelshopWords.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductPrintFun.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

#include <limits>

namespace {

const QString STR_SOURCE = QStringLiteral("source");
const QString STR_DELIVERY = QStringLiteral("delivery");
const QString STR_PAYMENT = QStringLiteral("payment");
const QString STR_EXPRESS = QStringLiteral("express");
const QString STR_ITEMS = QStringLiteral("items");
const QString STR_COUPON = QStringLiteral("coupon");
const QString STR_COUPON_ID = QStringLiteral("couponId");
const QString STR_ARTICLE = QStringLiteral("article");
const QString STR_COUNT = QStringLiteral("count");
const QString STR_PAGES = QStringLiteral("pages");
const QString STR_MAPS = QStringLiteral("maps");
const QString STR_VIDEOS = QStringLiteral("videos");
const QString STR_TEMPLATES = QStringLiteral("templates");

const int HIGHEST_COUNT = 100000;

/// Of all pieces together, add-ons included: the description of discounts keeps an entry for each of them.
const qint64 MOST_PIECES = 1000000;

class CartReader
{
public:
    CartReader(VelshopJsonReader& theReader, VelshopCart& theCart) : myReader(theReader), myCart(theCart) {}

    void read()
    {
        const QJsonObject cart = myReader.document();
        if (myReader.isRefused())
            return;
        myReader.allowKeys(cart, QString(),
                           {STR_SOURCE, STR_DELIVERY, STR_PAYMENT, STR_EXPRESS, STR_ITEMS, STR_COUPON, STR_COUPON_ID});
        readOrderSource(cart);
        readPayment(cart);
        readExpress(cart);
        readCoupon(cart);
        const QJsonArray items = myReader.array(cart.value(STR_ITEMS), STR_ITEMS);
        for (int index = 0; index < items.size() && !myReader.isRefused(); ++index)
            readItem(items.at(index), QStringLiteral("items[%1]").arg(index));
    }

private:
    void readOrderSource(const QJsonObject& theCart)
    {
        VelOrderSource source = VelTarmGlobalStatus::instance()->orderSource();
        if (theCart.contains(STR_SOURCE) || theCart.contains(STR_DELIVERY)) {
            VelInputSource input = INPUT_SOURCE_NET;
            VelDeliveryType delivery = DELIVERY_TYPE_MAILORDER;
            if (!VelshopWords::readInputSource(myReader.text(theCart.value(STR_SOURCE), STR_SOURCE), input))
                myReader.refuse(STR_SOURCE, QStringLiteral("must be NET, CD or KIOSK"));
            if (!VelshopWords::readDeliveryType(myReader.text(theCart.value(STR_DELIVERY), STR_DELIVERY), delivery))
                myReader.refuse(STR_DELIVERY, QStringLiteral("must be POS, MAIL or ONSITE"));
            source = VelOrderSource(input, delivery);
        }
        if (!VelOrderingDetails::instance()->availableOrderSources().contains(source))
            myReader.refuse(STR_SOURCE,
                            QStringLiteral("the shop takes no orders by ") + VelshopWords::orderSource(source));
        myCart.myStatus.setOrderSource(source);
        myCart.myStatus.setPayment(VelOrderingDetails::instance()->reasonableStartingPayment(source));
    }

    void readPayment(const QJsonObject& theCart)
    {
        if (!theCart.contains(STR_PAYMENT))
            return;
        const int number = myReader.number(theCart.value(STR_PAYMENT), STR_PAYMENT, 0, std::numeric_limits<int>::max());
        const VelOrderSource source = myCart.myStatus.orderSource();
        for (const VelPaymentType payment : VelOrderingDetails::instance()->availablePayments(source))
            if (payment == number)
                return myCart.myStatus.setPayment(payment);
        myReader.refuse(
            STR_PAYMENT,
            QStringLiteral("%1 can't be chosen by %2").arg(QString::number(number), VelshopWords::orderSource(source)));
    }

    void readExpress(const QJsonObject& theCart)
    {
        if (!theCart.contains(STR_EXPRESS))
            return;
        myCart.myExpress = VelExpressType(myReader.text(theCart.value(STR_EXPRESS), STR_EXPRESS));
        if (!myCart.myExpress.isValid())
            myReader.refuse(STR_EXPRESS, QStringLiteral("must be \"0\", \"1\" or \"2\""));
    }

    void readCoupon(const QJsonObject& theCart)
    {
        if (!theCart.contains(STR_COUPON) && !theCart.contains(STR_COUPON_ID))
            return;
        const QString file = myReader.text(theCart.value(STR_COUPON), STR_COUPON);
        const QFileInfo cart(myCart.myFile);
        myCart.myCouponFile = cart.isFile() ? cart.dir().filePath(file) : file;
        myCart.myCouponId = myReader.text(theCart.value(STR_COUPON_ID), STR_COUPON_ID);
        if (!QFileInfo(myCart.myCouponFile).isFile()) // a device or a pipe might never end
            myReader.refuse(STR_COUPON, myCart.myCouponFile + QStringLiteral(": there is no such file"));
    }

    void readItem(const QJsonValue& theValue, const QString& thePlace)
    {
        const QJsonObject item = myReader.object(theValue, thePlace);
        const QString place = thePlace + QLatin1Char('.');
        myReader.allowKeys(item, place, {STR_ARTICLE, STR_COUNT, STR_PAGES, STR_MAPS, STR_VIDEOS, STR_TEMPLATES});
        const int article = myReader.number(item.value(STR_ARTICLE), place + STR_ARTICLE,
                                            std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        const int count = myReader.number(item.value(STR_COUNT), place + STR_COUNT, 1, HIGHEST_COUNT);
        VelshopError reason;
        VelProductAbstract* product = findArticle(article, reason);
        if (!product)
            myReader.refuse(place + STR_ARTICLE, reason.text());
        if (myReader.isRefused())
            return;
        addPieces(product, count, thePlace);
        readParts(item, product, count, place);
    }

    int part(const QJsonObject& theItem, const QString& theKey, const QString& thePlace)
    {
        return theItem.contains(theKey) ? myReader.number(theItem.value(theKey), thePlace + theKey, 0, HIGHEST_COUNT)
                                        : 0;
    }

    /// What the customer put into a book or calendar; each part of a piece costs an add-on.
    void readParts(const QJsonObject& theItem, VelProductAbstract* theProduct, int theCount, const QString& thePlace)
    {
        const bool isComposed =
            theProduct->isProductClass(PRODUCT_CLASS_FOTO_BOOK) || theProduct->isProductClass(PRODUCT_CLASS_CALENDAR);
        for (const QString& key : {STR_PAGES, STR_MAPS, STR_VIDEOS, STR_TEMPLATES})
            if (theItem.contains(key) && !isComposed)
                myReader.refuse(thePlace + key, QStringLiteral("belongs to books and calendars alone"));
        const int pages = readPages(theItem, theProduct, thePlace);
        const int maps = part(theItem, STR_MAPS, thePlace);
        const int videos = part(theItem, STR_VIDEOS, thePlace);
        const VelProductPriceCalculator calculator(theProduct, pages, maps, videos, readTemplates(theItem, thePlace));
        if (!isComposed || myReader.isRefused())
            return;
        addAll(calculator.boughtPagePackages(), theCount, thePlace + STR_PAGES);
        addAll(calculator.boughtLocrAreas(), theCount, thePlace + STR_MAPS);
        addAll(calculator.boughtVideoAreas(), theCount, thePlace + STR_VIDEOS);
        addAll(calculator.boughtTemplates(), theCount, thePlace + STR_TEMPLATES);
    }

    /// Without a number as many as the product has at least.
    int readPages(const QJsonObject& theItem, const VelProductAbstract* theProduct, const QString& thePlace)
    {
        const auto* product = dynamic_cast<const VelProductPrintFun*>(theProduct);
        const int lowest = product ? product->minPages() : 0;
        if (!theItem.contains(STR_PAGES))
            return lowest;
        const int pages = part(theItem, STR_PAGES, thePlace);
        if (!product || product->maxPages() < 1)
            return pages;
        const int step = qMax(1, product->pageIncrement());
        if (pages < lowest || pages > product->maxPages() || (static_cast<qint64>(pages) - lowest) % step != 0)
            myReader.refuse(thePlace + STR_PAGES, QStringLiteral("must be from %1 to %2 in steps of %3, not %4")
                                                      .arg(lowest)
                                                      .arg(product->maxPages())
                                                      .arg(step)
                                                      .arg(pages));
        return pages;
    }

    QMap<QString, int> readTemplates(const QJsonObject& theItem, const QString& thePlace)
    {
        QMap<QString, int> templates;
        if (!theItem.contains(STR_TEMPLATES))
            return templates;
        const QString place = thePlace + STR_TEMPLATES;
        const QJsonObject uses = myReader.object(theItem.value(STR_TEMPLATES), place);
        for (const QString& priceClass : uses.keys())
            templates[priceClass] =
                myReader.number(uses.value(priceClass), place + QLatin1Char('.') + priceClass, 0, HIGHEST_COUNT);
        return templates;
    }

    void addAll(const VelOrderStatistic& theBought, int theCount, const QString& thePlace)
    {
        for (VelProductAbstract* product : theBought.products())
            addPieces(product, static_cast<qint64>(theBought.value(product, 0)) * theCount, thePlace);
    }

    void addPieces(VelProductAbstract* theProduct, qint64 thePieces, const QString& thePlace)
    {
        myPieces += thePieces;
        if (myPieces > MOST_PIECES)
            myReader.refuse(thePlace, QStringLiteral("the cart comes to more than %1 pieces").arg(MOST_PIECES));
        if (!myReader.isRefused() && thePieces > 0)
            myCart.myItems.add(theProduct, static_cast<int>(thePieces));
    }

    VelshopJsonReader& myReader;
    VelshopCart& myCart;
    qint64 myPieces = 0;
};

} // namespace

bool readCart(const QString& theFile, VelshopCart& theCart, VelshopError& theError)
{
    VelshopJsonReader reader(theFile);
    theCart.myFile = theFile;
    CartReader(reader, theCart).read();
    theError = reader.error();
    return !reader.isRefused();
}
