#include "bill/VelCoupon.h"
#include "frame/VelChildElements.h"
#include "price/VelTarmPriceInfo.h"
#include "product/VelProductFactory.h"
#include "properties/NaivePricing.h"
#include "support/VelTestPriceList.h"

namespace {

QDomElement loaded(const NastyShop& theShop)
{
    const QDomElement root = parsedElement(theShop.xml());
    VelProductRegistry::instance()->updateProducts(root);
    return root;
}

Naive::Lines linesOf(const VelTarmBill& theBill)
{
    Naive::Lines result;
    for (const VelTarmBillPositionAbstract* p : theBill.orderPositions()) {
        const auto* position = qobject_cast<const VelTarmBillPosition*>(p);
        result.push_back({p->product()->articleID(), p->countItems(), p->discountModel(), p->discountLevel(),
                          p->unitPrice(), p->unitCount(), position ? position->discountItemsPerUnit() : 0,
                          p->nonOfferPrice()});
    }
    return result;
}

/// Coupons that leave nothing, a cent or much, and ones that nobody should hand out.
QList<int> couponsFor(const VelTarmBill& theBill)
{
    const auto minus = Naive::Wrapping::difference;
    const int due = Naive::Wrapping::sum(theBill.totalItemCost(PRODUCT_GROUP_ALL), theBill.transferFee());
    return {minus(0, due), minus(1, due), minus(-1, due), 0, -100, 500, std::numeric_limits<int>::min()};
}

QString text(int theNumber)
{
    return QString::number(theNumber);
}

template <typename List>
QString text(const List& theList)
{
    QString result;
    for (const auto& item : theList)
        result += text(item) + ' ';
    return '(' + result.trimmed() + ')';
}

/// A shop told twice: read by the registry, and restated. It takes down where the two differ first.
class Trial
{
public:
    explicit Trial(const NastyShop& theShop) : myShop(theShop), myDocument(loaded(theShop))
    {
        myStatus.setOrderSource(VelOrderSource(static_cast<VelInputSource>(myShop.inputSource),
                                               static_cast<VelDeliveryType>(myShop.deliveryType)));
        myStatus.setPayment(static_cast<VelPaymentType>(myShop.payment));
        for (const ShopArticle& article : myShop.articles)
            myPrices.emplace_back(article, myShop);
        for (const auto& line : myShop.cart)
            if (naive(line.first))
                myStatistic.add(product(line.first), line.second);
        for (VelProductAbstract* product : myStatistic.products())
            myCart.emplace_back(naive(product->articleID()), myStatistic.value(product, 0));
    }

    QString failure() const { return myFailure; }

    QString printedBill() const { return text(linesOf(bill())) + text(amountsOf(bill(), couponsFor(bill()))); }

    void articlesCostWhatTheRulesSay()
    {
        for (const QDomElement& section : VelChildElements(myDocument)) {
            for (const QDomElement& element : VelChildElements(section)) {
                const std::unique_ptr<VelProductAbstract> product(VelProductFactory::instance()->build(element));
                const VelTarmPriceInfo info(product.get(), element);
                const Naive::Prices& naive = *this->naive(product->articleID());
                same<int>(info.transferModel(), naive.transferModel, "transfer model of article", {naive.article.id()});
                for (const VelDiscountLimit& limit : info.discountLimits(key(10)))
                    same(limit.upperLimit(), naive.upperLimit(limit.discountModel(), limit.level()),
                         "upper limit of article, model, level",
                         {naive.article.id(), limit.discountModel(), limit.level()});
                for (const int count : naive.article.counts()) {
                    compareSearch(info, naive, 10, count);
                    compareSearch(info, naive, 7, count); // as an express fee is asked for
                    for (int model = 0; model < 12; ++model)
                        compareRule(info, naive, model, count);
                }
            }
        }
    }

    void billsAddUp() { compareBills(bill(), naiveBill(), "bill"); }

    void filtersCutTheirOwnCopy()
    {
        const VelTarmBill bill = this->bill();
        VelTarmBill part(bill);
        Naive::Bill naivePart = naiveBill();
        part.filterArticles(myShop.couponArticles);
        naivePart.filter();
        compareBills(VelTarmBill(part), naivePart, "copy of a filtered bill");
        part.filterOutPackages();
        naivePart.keep([](const Naive::Line& line) { return line[Naive::ITEMS_PER_UNIT] <= 1; });
        compareBills(part, naivePart, "bill without packages");
        compareBills(bill, naiveBill(), "bill whose copies were filtered");

        VelTarmBill whole(bill);
        whole.filterArticles({1, 3, 4, 5, 11, 13, 14, bill.idOfTransferProduct(), bill.idOfPaymentAgioProduct()});
        same(linesOf(whole), linesOf(bill), "bill filtered by all that it has");
        for (const int coupon : couponsFor(bill))
            same(whole.totalFinalCost(coupon), bill.totalFinalCost(coupon), "its total with coupon", {coupon});
    }

    /// Piece by piece: they are as many as the lines say, and cost as much.
    void descriptionsUnfoldEveryPiece()
    {
        VelTarmBill bill = this->bill();
        VelTarmBill withFees(bill);
        bill.priceOfTransfer(&withFees);
        bill.priceOfExpressAgio(&withFees);
        for (const Naive::Line& line : linesOf(withFees))
            if (line[Naive::ITEMS] > 1000)
                return; // each piece takes room
        bill.initDiscountInfoForXTCI();
        same(linesOf(bill), linesOf(withFees), "lines with fees");
        for (const VelTarmBillPositionAbstract* position : bill.orderPositions()) {
            const QList<int> where = {position->product()->articleID(), position->discountLevel()};
            const bool isFree = naiveBill().isFree() && position->discountModel() != DISCOUNT_MODEL_EXPRESS_FEE;
            int price = position->unitPrice();
            for (int left = position->countItems(); left > 0; --left) {
                QDomElement element = parsedElement("<e/>");
                same(bill.itemsAvailableInCurrentDiscountLevel(position->product()), left, "pieces of article, level",
                     where);
                bill.describeDiscount(element, position->product(), 1, true);
                same(element.attribute("price").toInt(), isFree ? 0 : price, "price of article, level", where);
                price = position->isPackage() ? 0 : price; // the first piece carries it
            }
        }
    }

    void reloadsLeaveNoTrace()
    {
        const VelTarmBill former = bill();
        const std::vector<int> amounts = amountsOf(former, {0, -100});
        for (const bool isAnotherBetween : {false, true}) {
            if (isAnotherBetween)
                loaded(NastyShop(static_cast<unsigned>(amounts.front()) + 77U));
            loaded(myShop);
            same(linesOf(bill()), linesOf(former), "lines after a reload");
            same(amountsOf(bill(), {0, -100}), amounts, "amounts after a reload");
        }
    }

    /// A law of sensible amounts alone.
    void couponsTakeOffNoMoreThanThereIs()
    {
        const VelTarmBill bill = this->bill();
        const int express = bill.priceOfExpressAgio(nullptr);
        for (const int amount : {bill.totalItemCost(PRODUCT_GROUP_ALL), bill.transferFee(), express,
                                 bill.priceOfPaymentAgio(0), bill.unitPriceOfCheapestArticle()})
            if (amount < 0 || amount > 1000000)
                return;
        const VelCoupon coupon("code", parsedElement(myShop.couponXml()));
        const int discount = coupon.discountForOrder(bill, 0);
        holds(discount <= 0, "a coupon takes off");
        holds(discount >= -coupon.totalValueOfOrder(bill), "but not more than its articles come to");
        holds(bill.totalFinalCost(discount) >= express, "express is paid in full");
        holds(bill.totalFinalCost(discount) <= bill.totalFinalCost(discount + 1), "more off costs no more");
        holds(bill.totalFinalCost(discount) <= bill.totalFinalCost(0), "nobody pays more with a coupon");
    }

private:
    /// The numbers say of what: an article, a count.
    template <typename T>
    void same(const T& theLibrary, const T& theNaive, const char* theWhat, const QList<int>& theNumbers = {})
    {
        if (myFailure.isEmpty() && !(theLibrary == theNaive))
            myFailure = QString("%1 %2\n  library: %3\n  rules:   %4")
                            .arg(theWhat, text(theNumbers), text(theLibrary), text(theNaive));
    }

    void holds(bool theLaw, const char* theWhat) { same<int>(theLaw, true, theWhat); }

    void compareSearch(const VelTarmPriceInfo& theInfo, const Naive::Prices& theNaive, int theModel, int theCount)
    {
        const int sum = Naive::Wrapping::product(theCount, 50);
        const QList<int> where = {theNaive.article.id(), theModel, theCount};
        VelTarmBill bill = emptyBill();
        Naive::Lines lines;
        same(theInfo.priceFor(key(theModel), theCount, nullptr, sum, &myStatistic),
             theNaive.priceFor(theCount, sum, myCart, nullptr, theModel), "search of article, model, count", where);
        same(theInfo.priceFor(key(theModel), theCount, &bill, sum, &myStatistic),
             theNaive.priceFor(theCount, sum, myCart, &lines, theModel), "search for a bill of article, model, count",
             where);
        same(linesOf(bill), lines, "lines of article, model, count", where);
        same(theInfo.transferPriceFor(key(theModel, 1), theCount, sum, &myStatistic),
             theNaive.transferPriceFor(1, theCount, sum, myCart), "transfer price of article, model, count", where);
        same<int>(theInfo.bestDiscountModel(key(theModel), theCount, sum, theCount),
                  theNaive.bestModel(theCount, sum, theCount), "best model of article, model, level", where);
    }

    void compareRule(const VelTarmPriceInfo& theInfo, const Naive::Prices& theNaive, int theModel, int theCount)
    {
        const QList<int> where = {theNaive.article.id(), theModel, theCount};
        const int level = theCount % 4;
        VelTarmBill bill = emptyBill();
        Naive::Lines lines;
        same(theInfo.priceInModel(key(theModel, level), 7, theCount, nullptr),
             theNaive.priceInModel(theModel, level, 7, theCount, nullptr), "price of article, model, sum", where);
        same(theInfo.priceInModel(key(theModel, level), theCount, 1, &bill),
             theNaive.priceInModel(theModel, level, theCount, 1, &lines), "price of article, model, count", where);
        same(linesOf(bill), lines, "lines of article, model, count", where);
        const VelDiscountLimit limit(static_cast<VelDiscountModel>(theModel), theCount, -1, level, false);
        same(theInfo.priceAtBound(key(10), limit), theNaive.priceAtBound(theModel, theCount, level),
             "price at bound of article, model, lower limit", where);
        for (const bool packagesOnly : {false, true})
            same(theInfo.bestDiscountLevel(key(theModel), theCount, packagesOnly),
                 theNaive.reached(theModel, theCount, packagesOnly), "level of article, model, count", where);
    }

    void compareBills(const VelTarmBill& theBill, const Naive::Bill& theNaive, const char* theWhich)
    {
        const QList<int> coupons = couponsFor(theBill);
        same(amountsOf(theBill, coupons), theNaive.amounts(coupons), theWhich);
        same(linesOf(theBill), theNaive.lines, theWhich); // from now on the positions exist and answer
        same(amountsOf(theBill, coupons), theNaive.amounts(coupons), theWhich);
    }

    /// In the order of Naive::Bill::amounts.
    std::vector<int> amountsOf(const VelTarmBill& theBill, const QList<int>& theCoupons) const
    {
        std::vector<int> result = {theBill.totalItemCost(PRODUCT_GROUP_ALL),
                                   theBill.totalItemCount(PRODUCT_GROUP_ALL),
                                   theBill.unitPriceOfCheapestArticle(),
                                   theBill.transferFee(),
                                   theBill.priceOfTransfer(nullptr),
                                   theBill.priceOfTransfer(),
                                   theBill.priceOfUnitTransfer(),
                                   theBill.priceOfExpressAgio(nullptr),
                                   theBill.priceOfPaymentAgio(myStatus.payment()),
                                   theBill.totalFinalCostWithoutCoupon(),
                                   theBill.isValid()};
        for (const int coupon : theCoupons)
            result.insert(result.end(), {theBill.priceOfPaymentAgio(coupon), theBill.totalFinalCost(coupon)});
        return result;
    }

    const Naive::Prices* naive(int theID) const
    {
        const auto isIt = [&](const Naive::Prices& thePrices) { return thePrices.article.id() == theID; };
        const auto found = std::find_if(myPrices.begin(), myPrices.end(), isIt);
        return found == myPrices.end() ? nullptr : &*found;
    }

    VelTarmPriceKey key(int theModel, int theLevel = -1) const
    {
        return priceKey(theLevel, theModel, myStatus.orderSource());
    }
    VelExpressType expressType() const { return static_cast<VelExpressTypeEnum>(myShop.expressType); }
    VelTarmBill bill() const { return {myShop.group, myStatistic, expressType(), myStatus}; }
    VelTarmBill emptyBill() const { return {myShop.group, VelOrderStatistic(), expressType(), myStatus}; }
    Naive::Bill naiveBill() const { return {myShop, myPrices, myCart}; }

    NastyShop myShop;
    QDomElement myDocument;
    VelTarmStatus myStatus;
    std::vector<Naive::Prices> myPrices;
    Naive::Cart myCart;
    VelOrderStatistic myStatistic;
    QString myFailure;
};

using Property = void (Trial::*)();

QString failureOf(Property theProperty, const NastyShop& theShop)
{
    Trial trial(theShop);
    (trial.*theProperty)();
    return trial.failure();
}

unsigned setting(const char* theVariable, unsigned theDefault)
{
    return qEnvironmentVariableIsSet(theVariable) ? qgetenv(theVariable).toUInt() : theDefault;
}

/// Tries the property on shops of rising seeds. A shop on which it fails is cut down as long as it still fails. A
/// costly property gets but a share of the shops.
void check(Property theProperty, unsigned theShare = 1)
{
    const unsigned first = setting("VELTARM_FIRST_SEED", 1);
    const unsigned count = setting("VELTARM_SEEDS", 400) / theShare;
    for (unsigned seed = first; seed - first < count; ++seed) {
        NastyShop shop(seed);
        if (failureOf(theProperty, shop).isEmpty())
            continue;
        NastyShop smaller = shop;
        for (int part = 0; smaller.leaveOut(part); smaller = shop)
            if (failureOf(theProperty, smaller).isEmpty())
                ++part;
            else
                shop = smaller;
        QFAIL(qPrintable(QString("seed %1: %2\n%3").arg(seed).arg(failureOf(theProperty, shop), shop.text())));
    }
}

} // namespace

/**
 * Properties of all prices and bills, tried on shops that dice have thrown together. VELTARM_SEEDS sets how many
 * shops there are, VELTARM_FIRST_SEED which one comes first.
 */
class PricingPropertiesTest : public QObject
{
    Q_OBJECT

private slots:
    /// Products are priced in the order in which they were first read: from here on it is the same for every seed.
    void initTestCase()
    {
        NastyShop shop(0);
        shop.articles = NastyShop::allArticles();
        loaded(shop);
    }

    void articlesCostWhatTheRulesSay() { check(&Trial::articlesCostWhatTheRulesSay, 4); }
    void billsAddUp() { check(&Trial::billsAddUp); }
    void filtersCutTheirOwnCopy() { check(&Trial::filtersCutTheirOwnCopy); }
    void descriptionsUnfoldEveryPiece() { check(&Trial::descriptionsUnfoldEveryPiece); }
    void reloadsLeaveNoTrace() { check(&Trial::reloadsLeaveNoTrace, 4); }
    void couponsTakeOffNoMoreThanThereIs() { check(&Trial::couponsTakeOffNoMoreThanThereIs); }

    /// Into the file that VELTARM_BILLS names, for tools/same-bills.
    void printedBills()
    {
        QFile file(qEnvironmentVariable("VELTARM_BILLS"));
        if (file.fileName().isEmpty())
            return;
        QVERIFY(file.open(QIODevice::WriteOnly));
        for (unsigned seed = 1; seed <= setting("VELTARM_SEEDS", 400); ++seed)
            file.write(Trial(NastyShop(seed)).printedBill().toUtf8() + '\n');
    }
};

VEL_TEST_MAIN(PricingPropertiesTest)
#include "tst_PricingProperties.moc"
