#include "bill/VelCoupon.h"
#include "frame/VelArithmetic.h"
#include "insight/VelPositionedDocument.h"
#include "insight/VelPriceExplainer.h"
#include "price/VelTarmPriceView.h"
#include "properties/NastyShop.h"
#include "support/VelTestPriceList.h"

namespace {

using Terms = QVector<VelExplainedTerm>;

QList<VelOrderSource> orderSources()
{
    return {VelOrderSource::onlineMailOrder(), VelOrderSource::onlinePointOfSale(), VelOrderSource::cdMailOrder(),
            VelOrderSource::cdPointOfSale(), VelOrderSource::kioskOnSite()};
}

/// An element a line, so that a line tells which one it is.
QByteArray inLines(QString theXml)
{
    return theXml.replace(">", ">\n").toUtf8();
}

/// What an explanation tells beside the values and columns of its places.
QString told(const Terms& theTerms)
{
    QString text;
    for (const VelExplainedTerm& term : theTerms) {
        text += QString("%1 %2 %3\n").arg(term.myArticle).arg(term.myAmount).arg(term.myReason);
        for (const VelExplainedCandidate& candidate : term.myCandidates) {
            text += QString("%1 %2 %3 %4 %5 %6 %7")
                        .arg(candidate.myModel)
                        .arg(candidate.myLevel)
                        .arg(candidate.myFrom)
                        .arg(candidate.myTo)
                        .arg(candidate.myAmount)
                        .arg(candidate.myComputed, candidate.myVerdict);
            for (const VelExplainedPlace& place : candidate.myPlaces.myDecides)
                text += QString(" %1").arg(place.myPlace.myLine);
        }
    }
    return text;
}

bool isIdentity(const QString& theAttribute)
{
    return QStringList{"id", "group", "pay_method_id", "express"}.contains(theAttribute);
}

/// An order of a shop whose documents are files, which are changed attribute by attribute.
class Trial
{
public:
    Trial(const TestAccount& theAccount, const NastyShop& theShop)
        : myShop(theShop)
        , myPriceList(theAccount.write("pricelist.xml", inLines(theShop.xml())))
        , myCoupon(theAccount.write("coupon.xml",
                                    inLines(theShop.couponXml().replace("<coupon ", "<coupon campaign_no='1' "))))
        , myCouponFile(theAccount.path("coupon.xml"))
    {
        VelKeyAccount::instance()->setPricelistXMLFileInfo(QFileInfo(theAccount.path("pricelist.xml")));
        VelProductRegistry::instance()->loadAllProducts();
        myStatus.setOrderSource(VelOrderSource(static_cast<VelInputSource>(theShop.inputSource),
                                               static_cast<VelDeliveryType>(theShop.deliveryType)));
        myStatus.setPayment(static_cast<VelPaymentType>(theShop.payment));
        for (const auto& line : theShop.cart)
            if (product(line.first))
                myCart.add(product(line.first), line.second);
        myTerms = explained();
        for (const VelExplainedTerm& term : qAsConst(myTerms)) {
            cite(term.myPlaces);
            for (const VelExplainedCandidate& candidate : term.myCandidates)
                cite(candidate.myPlaces);
        }
    }

    QString failure() const { return myFailure.isEmpty() ? myFailure : myFailure + '\n' + myShop.text(); }
    int cited() const { return myDeciding; }

    void termsAddUp()
    {
        const QVector<int> amounts = this->amounts();
        int sum = 0;
        for (const VelExplainedTerm& term : qAsConst(myTerms))
            sum = VelArithmetic::sum(sum, term.myCharged);
        if (sum != amounts.last())
            fail(QString("the terms come to %1, the bill to %2").arg(sum).arg(amounts.last()));
    }

    void onlyCitedPlacesMatter()
    {
        const QVector<int> before = amounts();
        const QString toldBefore = told(myTerms);
        for (VelPositionedDocument* document : {&myPriceList, &myCoupon})
            for (QDomElement element = document->root(); !element.isNull(); element = following(element))
                for (const QString& name : attributesOf(*document, element))
                    isCited(*document, element, name) ? changeCited(*document, element, name, toldBefore)
                                                      : changeOther(element, name, before);
    }

private:
    void fail(const QString& theText)
    {
        if (myFailure.isEmpty())
            myFailure = theText;
    }

    void cite(const VelExplainedPlaces& thePlaces)
    {
        for (const VelExplainedPlace& place : thePlaces.myDecides)
            myDecides.insert(key(place.myFile == myCouponFile, place.myPlace, place.myAttribute));
        for (const VelExplainedPlace& place : thePlaces.myCompared)
            myCompared.insert(key(place.myFile == myCouponFile, place.myPlace, place.myAttribute));
    }

    static QString key(bool theIsCoupon, const VelDocumentPlace& thePlace, const QString& theAttribute)
    {
        return QString("%1 %2 %3 %4").arg(theIsCoupon).arg(thePlace.myLine).arg(thePlace.myColumn).arg(theAttribute);
    }

    QString key(const VelPositionedDocument& theDocument, const QDomElement& theElement, const QString& theName) const
    {
        const bool isThere = theDocument.attributeValue(theElement, theName).isValid();
        return key(&theDocument == &myCoupon,
                   isThere ? theDocument.attributeValue(theElement, theName) : theDocument.place(theElement), theName);
    }

    bool isCited(const VelPositionedDocument& theDocument, const QDomElement& theElement, const QString& theName) const
    {
        const QString place = key(theDocument, theElement, theName);
        return myDecides.contains(place) || myCompared.contains(place);
    }

    static QDomElement following(const QDomElement& theElement)
    {
        if (!theElement.firstChildElement().isNull())
            return theElement.firstChildElement();
        for (QDomElement at = theElement; !at.isNull(); at = at.parentNode().toElement())
            if (!at.nextSiblingElement().isNull())
                return at.nextSiblingElement();
        return QDomElement();
    }

    /// Those that it has, and those whose default is cited.
    QStringList attributesOf(const VelPositionedDocument& theDocument, const QDomElement& theElement) const
    {
        QStringList names;
        for (int index = 0; index < theElement.attributes().count(); ++index)
            names += theElement.attributes().item(index).nodeName();
        for (const char* name :
             {"price", "type", "level", "quantity", "input_source", "delivery_type", "model", "minimum_price",
              "free_quantity", "minimum_quantity", "transfer_base_price", "transfer_unit_price"})
            if (!names.contains(name) && isCited(theDocument, theElement, name))
                names += name;
        return names;
    }

    QString toldWith(QDomElement theElement, const QString& theName, const QString& theValue)
    {
        const bool wasThere = theElement.hasAttribute(theName);
        const QString former = theElement.attribute(theName);
        theElement.setAttribute(theName, theValue);
        const QString text = told(explained());
        wasThere ? theElement.setAttribute(theName, former) : theElement.removeAttribute(theName);
        return text;
    }

    void changeCited(const VelPositionedDocument& theDocument, const QDomElement& theElement, const QString& theName,
                     const QString& theBefore)
    {
        if (!myDecides.contains(key(theDocument, theElement, theName)))
            return;
        ++myDeciding;
        const bool isPrice = theName == "price" && theElement.tagName() == "e";
        int changes = 0;
        const QStringList values{"9", "Q", "3", "1", "7777", "2"};
        for (const QString& value : values) {
            const bool isOther = theElement.attribute(theName) != value;
            const bool changed = isOther && toldWith(theElement, theName, value) != theBefore;
            changes += changed ? 1 : 0;
            if (isPrice && isOther && !changed && value != "Q")
                fail(QString("price %1 in line %2 changes nothing").arg(value).arg(theElement.lineNumber()));
            if (changed && !isPrice)
                break;
        }
        if (changes == 0)
            fail(QString("no %1 in line %2 changes anything").arg(theName).arg(theElement.lineNumber()));
    }

    void changeOther(QDomElement theElement, const QString& theName, const QVector<int>& theBefore)
    {
        if (isIdentity(theName))
            return;
        const QString former = theElement.attribute(theName);
        for (const char* value : {"0", "5", "-1", "trivial"}) {
            theElement.setAttribute(theName, value);
            if (amounts() != theBefore)
                fail(QString("%1 %2 in line %3 matters").arg(theName, value).arg(theElement.lineNumber()));
        }
        theElement.setAttribute(theName, former);
    }

    VelTarmBill bill() const
    {
        VelProductRegistry::instance()->updateProducts(myPriceList.root());
        return VelTarmBill(myShop.group, myCart, VelExpressType(static_cast<VelExpressTypeEnum>(myShop.expressType)),
                           myStatus);
    }

    Terms explained() const
    {
        const VelTarmBill bill = this->bill();
        const VelCoupon coupon("code", myCoupon.root());
        return VelPriceExplainer({myCouponFile}).bill(bill, &coupon).terms();
    }

    QVector<int> amounts() const
    {
        const VelTarmBill bill = this->bill();
        const VelCoupon coupon("code", myCoupon.root());
        const int discount = coupon.isValid() ? coupon.discountForOrder(bill, 0) : 0;
        QVector<int> amounts;
        for (const VelTarmBillPositionAbstract* position : bill.orderPositions())
            amounts += position->positionPrice();
        return amounts << bill.transferFee() << bill.priceOfPaymentAgio(discount) << bill.priceOfExpressAgio(nullptr)
                       << discount << bill.totalFinalCost(discount);
    }

    const NastyShop& myShop;
    VelPositionedDocument myPriceList;
    VelPositionedDocument myCoupon;
    const QString myCouponFile;
    VelTarmStatus myStatus;
    VelOrderStatistic myCart;
    Terms myTerms;
    QSet<QString> myDecides;
    QSet<QString> myCompared;
    int myDeciding = 0;
    QString myFailure;
};

bool hasPrice(const VelProductAbstract& theProduct, const VelOrderSource& theSource, int theCount, int theLevel)
{
    return VelTarmPriceView(theProduct, theSource).best(theCount, 0, theLevel).myPrice != -1;
}

/// Each need has a price and one piece less has none; nothing is left out.
QString failureOfNeeds(const VelPriceExplainer& theExplainer, const VelProductAbstract& theProduct, int theCount,
                       const QList<int>& theCounts)
{
    const QString where = QString("article %1, count %2").arg(theProduct.articleID()).arg(theCount);
    for (const VelOrderSource& source : orderSources()) {
        const VelTarmPriceKey key(source, -1, DISCOUNT_MODEL_UNDEFINED);
        const VelExplainedTerm term = theExplainer.price(theProduct, key, theCount).terms().first();
        if (term.myHasPrice || theProduct.transferModel() == TRANSFER_MODEL_2)
            continue;
        QSet<QString> ways;
        for (const VelExplainedNeed& need : term.myNeeds) {
            ways += QString("%1 %2").arg(need.myOrderSource.inputSource()).arg(need.myOrderSource.deliveryType());
            if (!hasPrice(theProduct, need.myOrderSource, need.myFrom, need.myLevel))
                return where + ": a need without a price";
            if (need.myFrom > 1 && hasPrice(theProduct, need.myOrderSource, need.myFrom - 1, need.myLevel))
                return where + ": a smaller quantity has a price";
        }
        for (const VelOrderSource& other : orderSources())
            for (const int count : theCounts)
                if (count > 0 && hasPrice(theProduct, other, count, 0) &&
                    !ways.contains(QString("%1 %2").arg(other.inputSource()).arg(other.deliveryType())))
                    return where + ": a way is left out";
    }
    return QString();
}

/// How many shops are drawn: more of them by hand.
int shops(int theUsual)
{
    const int asked = qEnvironmentVariableIntValue("VELTARM_SEEDS");
    return asked > 0 ? asked : theUsual;
}

} // namespace

/// The laws of explanations, held against shops that are drawn. VELTARM_SEEDS sets how many.
class ExplanationPropertiesTest : public QObject
{
    Q_OBJECT

private slots:
    /// The order of products is the same for every seed, as they are first read here.
    void initTestCase()
    {
        NastyShop shop(0);
        shop.articles = NastyShop::allArticles();
        myAccount.write("pricelist.xml", shop.xml().toUtf8());
        myAccount.activateWithDetails("<d/>");
        QCOMPARE(VelProductRegistry::instance()->productList().size(), 7);
    }

    void termsAddUp()
    {
        for (int seed = 0; seed < shops(300); ++seed) {
            const NastyShop shop(static_cast<unsigned>(seed));
            Trial trial(myAccount, shop);
            trial.termsAddUp();
            QVERIFY2(trial.failure().isEmpty(), qPrintable(QString("seed %1: ").arg(seed) + trial.failure()));
        }
    }

    void onlyCitedPlacesMatter()
    {
        int deciding = 0;
        for (int seed = 0; seed < shops(12); ++seed) {
            const NastyShop shop(static_cast<unsigned>(seed));
            Trial trial(myAccount, shop);
            trial.onlyCitedPlacesMatter();
            deciding += trial.cited();
            QVERIFY2(trial.failure().isEmpty(), qPrintable(QString("seed %1: ").arg(seed) + trial.failure()));
        }
        QVERIFY(deciding > 0);
        if (qEnvironmentVariableIsSet("VELTARM_SEEDS"))
            qInfo("%d deciding places", deciding);
    }

    void needsAreExact()
    {
        for (int seed = 0; seed < shops(100); ++seed) {
            const NastyShop shop(static_cast<unsigned>(seed));
            const Trial trial(myAccount, shop);
            const VelPriceExplainer explainer;
            for (const ShopArticle& article : shop.articles)
                if (const VelProductAbstract* product = ::product(article.id()))
                    for (const int count : {1, 3})
                        QCOMPARE(failureOfNeeds(explainer, *product, count, article.counts()), QString());
        }
    }

    void needsOfSampleShopsAreExact_data()
    {
        QTest::addColumn<QString>("shop");
        QTest::newRow("shop") << "shop";
        QTest::newRow("shop-small") << "shop-small";
    }

    void needsOfSampleShopsAreExact()
    {
        QFETCH(const QString, shop);
        VelKeyAccount::instance()->activate(QDir(VELTARM_SOURCE_DIR "/" + shop));
        const VelPriceExplainer explainer;
        for (const VelProductAbstract* product : VelProductRegistry::instance()->productList())
            if (!product->isDeprecated())
                QCOMPARE(failureOfNeeds(explainer, *product, 1, {1, 2, 10, 100}), QString());
    }

private:
    const TestAccount myAccount;
};

VEL_TEST_MAIN(ExplanationPropertiesTest)
#include "tst_ExplanationProperties.moc"
