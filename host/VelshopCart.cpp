#include "host/VelshopCart.h"

#include "frame/VelTarmGlobalStatus.h"
#include "host/VelshopArticle.h"
#include "host/VelshopJsonReader.h"
#include "host/VelshopParts.h"
#include "host/VelshopWords.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductAbstract.h"

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
        const int count = myReader.number(item.value(STR_COUNT), place + STR_COUNT, 1, VelshopParts::HIGHEST_COUNT);
        VelshopError reason;
        VelProductAbstract* product = findArticle(article, reason);
        if (!product)
            myReader.refuse(place + STR_ARTICLE, reason.text());
        if (myReader.isRefused())
            return;
        addPieces(product, count, thePlace);
        readParts(item, product, count, place);
    }

    std::optional<int> readPart(const QJsonObject& theItem, const QString& theKey, const QString& thePlace)
    {
        if (!theItem.contains(theKey))
            return std::nullopt;
        return myReader.number(theItem.value(theKey), thePlace + theKey, 0, VelshopParts::HIGHEST_COUNT);
    }

    /// What the customer put into a book or calendar; each part of a piece costs an add-on.
    void readParts(const QJsonObject& theItem, VelProductAbstract* theProduct, int theCount, const QString& thePlace)
    {
        VelshopParts parts;
        parts.myPages = readPart(theItem, STR_PAGES, thePlace);
        parts.myMaps = readPart(theItem, STR_MAPS, thePlace);
        parts.myVideos = readPart(theItem, STR_VIDEOS, thePlace);
        parts.myTemplates = readTemplates(theItem, thePlace);
        const VelshopPartRefusal refusal = refusalOf(parts, theProduct);
        if (!refusal.myPart.isEmpty())
            myReader.refuse(thePlace + refusal.myPart, refusal.myReason);
        addParts(parts.calculator(theProduct), theCount, thePlace);
    }

    void addParts(const VelProductPriceCalculator& theCalculator, int theCount, const QString& thePlace)
    {
        if (myReader.isRefused())
            return;
        addAll(theCalculator.boughtPagePackages(), theCount, thePlace + STR_PAGES);
        addAll(theCalculator.boughtLocrAreas(), theCount, thePlace + STR_MAPS);
        addAll(theCalculator.boughtVideoAreas(), theCount, thePlace + STR_VIDEOS);
        addAll(theCalculator.boughtTemplates(), theCount, thePlace + STR_TEMPLATES);
    }

    std::optional<QMap<QString, int>> readTemplates(const QJsonObject& theItem, const QString& thePlace)
    {
        if (!theItem.contains(STR_TEMPLATES))
            return std::nullopt;
        QMap<QString, int> templates;
        const QString place = thePlace + STR_TEMPLATES;
        const QJsonObject uses = myReader.object(theItem.value(STR_TEMPLATES), place);
        for (const QString& priceClass : uses.keys())
            templates[priceClass] = myReader.number(uses.value(priceClass), place + QLatin1Char('.') + priceClass, 0,
                                                    VelshopParts::HIGHEST_COUNT);
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
