#include "insight/VelCouponExplainer.h"

#include "bill/VelCoupon.h"
#include "bill/VelTarmBill.h"
#include "frame/VelChildElements.h"
#include "insight/VelPriceCandidates.h"
#include "insight/VelPriceWords.h"
#include "product/VelProductAbstract.h"

namespace {

const QString STR_TYPE = QStringLiteral("type");
const QString STR_PRICE = QStringLiteral("price");
const QString STR_MINIMUM_PRICE = QStringLiteral("minimum_price");
const QString STR_FREE_QUANTITY = QStringLiteral("free_quantity");
const QString STR_MINIMUM_QUANTITY = QStringLiteral("minimum_quantity");
const QString STR_CAMPAIGN = QStringLiteral("campaign_no");
const QString STR_CONDITION = QStringLiteral("condition");
const QString STR_ARTICLE = QStringLiteral("art_id");
const QString STR_ID = QStringLiteral("id");
const QString STR_MAX_ORDER_ITEMS = QStringLiteral("max_order_items");
const QString STR_SHIPPING_TIMES = QStringLiteral("shipping_times");

bool isOfMoney(const VelCoupon& theCoupon)
{
    return theCoupon.type() == COUPON_TYPE_VALUE || theCoupon.type() == COUPON_TYPE_PERCENT;
}

/// The articles that count, as "all articles", "article 9171" or "the articles 9171, 9210".
QString articles(const VelCoupon& theCoupon)
{
    QStringList ids;
    for (const int id : theCoupon.validArticles())
        ids.append(QString::number(id));
    if (ids.size() == 1)
        return QStringLiteral("article ") + ids.first();
    return ids.isEmpty() ? QStringLiteral("all articles")
                         : QStringLiteral("the articles ") + ids.join(QStringLiteral(", "));
}

/// As "the minimum of 2000 is missed by 705".
QString minimum(qint64 theValue, int theMinimum)
{
    const qint64 beyond = theValue - theMinimum;
    return QStringLiteral("the minimum of %1 is %2 by %3")
        .arg(theMinimum)
        .arg(beyond < 0 ? QStringLiteral("missed") : QStringLiteral("met"))
        .arg(qAbs(beyond));
}

} // namespace

VelExplainedTerm VelCouponExplainer::term(const VelCoupon& theCoupon, const VelCouponUse& theUse) const
{
    VelExplainedTerm term;
    term.myKind = VelExplainedTerm::COUPON;
    term.myName = theCoupon.id();
    term.myAmount = theUse.myShare;
    term.myCharged = theUse.myShare;
    term.myReason = reason(theCoupon, theUse);
    cite(term.myPlaces, theCoupon, theUse);
    return term;
}

// ---- the reason

QString VelCouponExplainer::reason(const VelCoupon& theCoupon, const VelCouponUse& theUse) const
{
    if (theCoupon.type() == COUPON_TYPE_UNKNOWN)
        return QStringLiteral("not valid: it has no known type");
    if (!theCoupon.isValid())
        return QStringLiteral("not valid: it has no campaign_no");
    const QString left = theCoupon.type() == COUPON_TYPE_VALUE
                             ? QStringLiteral("; %1 of it is left after this bill").arg(theUse.myLeft)
                             : QString();
    return use(theCoupon, theUse) + left;
}

QString VelCouponExplainer::use(const VelCoupon& theCoupon, const VelCouponUse& theUse) const
{
    if (!theUse.myIsPlaceable)
        return QStringLiteral("not used: this bill can't be placed");
    if (theCoupon.type() != COUPON_TYPE_VALUE && theUse.myTaken != 0)
        return QStringLiteral("not used: it has counted on another bill");
    const int discount = theCoupon.discountForOrder(myBill, theUse.myTaken);
    QString reason = isOfMoney(theCoupon) ? percentOrValue(theCoupon, theUse) : freePieces(theCoupon);
    if (discount == -theCoupon.totalValueOfOrder(myBill) && discount != 0)
        reason += QStringLiteral("; no more than its articles come to, %1").arg(-static_cast<qint64>(discount));
    if (discount != theUse.myShare)
        reason += QStringLiteral("; cut from %1 to what is open on the bill").arg(discount);
    return reason;
}

QString VelCouponExplainer::percentOrValue(const VelCoupon& theCoupon, const VelCouponUse& theUse) const
{
    const int value = theCoupon.totalValueOfOrder(myBill);
    const QString spent =
        QStringLiteral("%1 %2 to %3, %4")
            .arg(articles(theCoupon),
                 theCoupon.validArticles().size() == 1 ? QStringLiteral("comes") : QStringLiteral("come"),
                 QString::number(value), minimum(value, theCoupon.minimumSpentValue()));
    if (theCoupon.type() == COUPON_TYPE_PERCENT)
        return QStringLiteral("%1 %: %2; that is %3")
            .arg(theCoupon.discountPercentage())
            .arg(spent)
            .arg(theCoupon.percentDiscount(myBill));
    return QStringLiteral("value %1: %2; %3 of it was left")
        .arg(theCoupon.maximumDiscountValue())
        .arg(spent)
        .arg(theUse.myLeftBefore);
}

QString VelCouponExplainer::freePieces(const VelCoupon& theCoupon) const
{
    VelTarmBill part(myBill);
    part.filterArticles(theCoupon.validArticles());
    part.filterOutPackages();
    const int count = part.totalItemCount(VelProductGroup(PRODUCT_GROUP_ALL));
    QString text =
        QStringLiteral("%1: %2 of %3 without packages, %4, the cheapest at %5")
            .arg(VelPriceWords::counted(theCoupon.freeQuantity(), QStringLiteral("free piece")),
                 VelPriceWords::counted(count, QStringLiteral("piece")), articles(theCoupon),
                 minimum(count, theCoupon.minimumQuantity()), QString::number(part.unitPriceOfCheapestArticle()));
    if (theCoupon.validArticles().contains(myBill.idOfTransferProduct()))
        text += QStringLiteral("; it pays the shipping of %1").arg(myBill.transferFee());
    return text + QStringLiteral("; that is %1").arg(theCoupon.quantityDiscount(myBill));
}

// ---- what it stands on

void VelCouponExplainer::cite(VelExplainedPlaces& thePlaces, const VelCoupon& theCoupon,
                              const VelCouponUse& theUse) const
{
    const QDomElement element = mySources.coupon(theUse.myNumber);
    const bool counts =
        theCoupon.isValid() && theUse.myIsPlaceable && (theCoupon.type() == COUPON_TYPE_VALUE || theUse.myTaken == 0);
    QVector<VelExplainedPlace> all;
    mySources.cite(all, element,
                   {STR_TYPE, STR_PRICE, STR_MINIMUM_PRICE, STR_FREE_QUANTITY, STR_MINIMUM_QUANTITY, STR_CAMPAIGN});
    for (const QDomElement& condition : VelChildElements(element, STR_CONDITION))
        mySources.cite(counts ? thePlaces.myDecides : all, condition, {STR_ARTICLE});
    if (counts)
        mySources.cite(thePlaces.myDecides, element,
                       isOfMoney(theCoupon) ? QStringList{STR_TYPE, STR_PRICE, STR_MINIMUM_PRICE}
                                            : QStringList{STR_TYPE, STR_FREE_QUANTITY, STR_MINIMUM_QUANTITY});
    citeObjections(all);
    thePlaces.myCompared = without(all, thePlaces.myDecides);
}

/// A bill that something stands against is given no coupon: a limit of its shipping group, an express that an article
/// can't be had by.
void VelCouponExplainer::citeObjections(QVector<VelExplainedPlace>& thePlaces) const
{
    mySources.cite(thePlaces, mySources.shippingGroup(myBill.shippingGroup()), {STR_ID, STR_MAX_ORDER_ITEMS});
    for (const VelProductAbstract* product : myBill.cart().products())
        for (const QDomElement& time :
             VelChildElements(mySources.element(*product).firstChildElement(STR_SHIPPING_TIMES)))
            mySources.citeAll(thePlaces, time);
}
