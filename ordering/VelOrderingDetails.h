#ifndef VELORDERINGDETAILS_H
#define VELORDERINGDETAILS_H

#include "frame/VelEnumerations.h"
#include "frame/VelOrderSource.h"
#include "frame/VelTarmExport.h"
#include "frame/VelTarmLoadResult.h"
#include "ordering/VelClientStrategyException.h"

#include <QDateTime>
#include <QDomElement>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

class VelOrderingDetailItem;

/**
 * What the current key account may do: its order ways, payments, currencies, shipping groups, image exports and
 * confirmations, and how bill positions are worded. All of it stands in the key account's ordering details, which are
 * read on the first use and whenever the key account changes. A missing or broken document counts as one without
 * content.
 *
 * Items and shipping groups are never deleted: a pointer handed out stays valid. Not safe against concurrent use, but
 * for instance().
 */
class VELTARM_EXPORT VelOrderingDetails : public QObject
{
    Q_OBJECT

public:
    /// Built on the first call, which is guarded; never deleted.
    static VelOrderingDetails* instance();

    /// How the last load went. It stands when changed() is emitted.
    VelTarmLoadResult lastLoad() const { return myLastLoad; }

    /// The text of `doi`, default false; acting on it is the application's business.
    bool requiresDOI() const { return myRequiresDOI; }
    /// The text of `address_check`, default false; acting on it is the application's business.
    bool requiresAddressCheck() const { return myRequiresAddressCheck; }
    /// The text of `sales_tax`, default false; acting on it is the application's business.
    bool requiresSalesTaxCheck() const { return myRequiresSalesTaxCheck; }

    /// ISO code of the primary currency; "EUR" when no document named one.
    QString currency() const { return myCurrency; }

    /// ISO code of the secondary currency; null when there is none.
    QString secondaryCurrency() const { return mySecondaryCurrency; }

    /// An empty code that is not null counts as present.
    bool hasSecondaryCurrency() const { return !mySecondaryCurrency.isNull(); }

    /// Primary money times this is secondary money: the reciprocal of the document's `factor`, infinite for a factor of
    /// 0 or one that is no number. 1.0 without a secondary currency.
    double secondaryCurrencyFactor() const { return mySecondaryFactor; }

    /// A copy of the record.
    VelClientStrategyException clientStrategyException() const { return myClientStrategyException; }

    /// How many order ways the document has, those without a payment too.
    int numberOfOrderWays() const { return myOrderSources.size(); }
    /// The order ways of the document, those without a payment too, ordered by VelOrderSource::operator<.
    QList<VelOrderSource> availableOrderSources() const { return myOrderSources.keys(); }

    /// Some order way of the document, with or without a payment, delivers to the point of sale.
    bool keyAccountPermitsPOS() const;

    /// The document lists an export of exactly that type; a client that connects by T_ONLINE_SAM has TOI in any case.
    bool supportsImageExport(VelImageExportTypeEnum theType) const;

    /// The wording of a bill position for a single piece, with the placeholder %1; empty for a model without a wording.
    QString billPositionDescriptionEach(VelDiscountModel theModel) const;
    /// The wording of a bill position for a package, with the placeholders %1 and %2; the general one for a model
    /// without a wording.
    QString billPositionDescriptionPackage(VelDiscountModel theModel) const;

    /// The newest `last_change` of the enabled shipping groups; null when there is none.
    QDateTime lastChangeInPriceList() const;

    /// The price list at hand is older than lastChangeInPriceList(), or has no time stamp.
    bool priceListNeedsToBeUpdated() const;

    /// The order way has a payment. Without a delivery type mail order or point of sale must have one; on site is
    /// enabled by products of shipping group 23, whatever the document lists.
    bool orderSourceEnabled(const VelOrderSource& theSource) const;

    /// orderSourceEnabled() for the net and a point of sale.
    bool canOnlinePointOfSale() const { return orderSourceEnabled(VelOrderSource::onlinePointOfSale()); }
    /// orderSourceEnabled() for the net and mail order.
    bool canOnlineMailOrder() const { return orderSourceEnabled(VelOrderSource::onlineMailOrder()); }
    /// orderSourceEnabled() for the CD and a point of sale.
    bool canCdPointOfSale() const { return orderSourceEnabled(VelOrderSource::cdPointOfSale()); }
    /// orderSourceEnabled() for the CD and mail order.
    bool canCdMailOrder() const { return orderSourceEnabled(VelOrderSource::cdMailOrder()); }
    /// orderSourceEnabled() for the kiosk and on site.
    bool canKioskOnSite() const { return orderSourceEnabled(VelOrderSource::kioskOnSite()); }
    /// Whether an order by the net is enabled, to whichever place.
    bool canAnyOnlineOrder() const { return canOnlineMailOrder() || canOnlinePointOfSale(); }
    /// Whether an order to a point of sale is enabled, by net or CD.
    bool canPointOfSale() const { return canOnlinePointOfSale() || canCdPointOfSale(); }
    /// Whether a mail order is enabled, by net or CD.
    bool canMailOrder() const { return canOnlineMailOrder() || canCdMailOrder(); }
    /// Whether of net, CD, point of sale and mail order nothing but the CD to a point of sale is enabled.
    bool canOnlyCdPointOfSale() const { return canCdPointOfSale() && !canOnlinePointOfSale() && !canMailOrder(); }

    /// The three classes in ascending order.
    QList<VelPaymentClass> payClasses() const;

    /// The class's items in document order: the list itself, owned here and refilled by update(). Null for a value that
    /// is no class.
    QList<VelOrderingDetailItem*>* detailsList(VelPaymentClass thePayClass) const;

    /// The types that `pay_methods` may hold: 0 to 3, 8, 9, 10, 12, 14 and 15.
    bool isSupportedETPaymentType(int theType) const;

    /// The payment types of `pay_methods` in document order, all but 0.
    QList<VelPaymentType> availableMailOrderPaymentTypes() const;

    /// The payments of an order way in document order; empty for an unknown one.
    QList<VelPaymentType> availablePayments(const VelOrderSource& theSource) const;

    /// The payment that a new order starts with: the order way's first; PAYMENT_TYPE_UNKNOWN when it has none.
    VelPaymentType reasonableStartingPayment(const VelOrderSource& theSource) const;
    /// The preferred payment if it is given and the order way has it; otherwise the order way's first,
    /// PAYMENT_TYPE_UNKNOWN when it has none.
    VelPaymentType reasonableStartingPayment(const VelOrderSource& theSource, VelPaymentType thePreferred) const;

    /// What the customer chooses from: the items of `pay_methods`, with all cards in place of the id 1 and all transfer
    /// methods in place of the id 9.
    QList<VelOrderingDetailItem*> orderingDetails() const;
    /// The items of orderingDetails() whose payment type the order way takes.
    QList<VelOrderingDetailItem*> orderingDetails(const VelOrderSource& theSource) const;

    /// The name of the first of orderingDetails(theSource) with that type and brand, case-sensitive; null when there is
    /// none.
    QString nameOfPaymentType(const VelOrderSource& theSource, VelPaymentType theType, const QString& theBrand) const;

    /// The name of the class's first item of that id; a made-up text of class and id when there is none.
    QString nameOfOrderingDetail(VelPaymentClass thePayClass, int theId);

    /// The names of the class's items in document order.
    QStringList namesOfOrderingDetails(VelPaymentClass thePayClass);

    /// The names of the items of `pay_methods`, with all cards in place of the id 1. Transfer methods don't occur.
    QStringList namesOfOrderingDetails();

    /// Makes an empty list for each class. For the constructor.
    void initPaymentTypes();

    /// Adds the icons of a file like `icons/payment/filenames.xml`, the later of one name in place of the earlier.
    /// False, without a message and without an effect, for a file that can't be read, is not XML or nests too deeply.
    bool initIconNames(const QString& theFileName);

    /// The `permitted_pay_method` children of an order way, unchecked; what is no number counts as 0.
    QList<VelPaymentType> parseAvailablePayments(const QDomElement& theElement);

    // ---- reading of one section each
    // A null element counts as a missing section.

    /// `order_sources`: replaces the order ways. One without any child node takes the payments that its delivery type
    /// suggests, so the items of `pay_methods` must have been read.
    void updateAvailablePaymentMethods(const QDomElement& theSection);

    /// `discount_types`: adds and replaces wordings; those of other models stay.
    void updateDiscountLevelDescriptions(const QDomElement& theSection);

    /// `currencies`: an entry without `factor` is the primary currency and clears the secondary one, an entry with it
    /// is the secondary currency. Without entries the former ones stay.
    void updateAvailableCurrencies(const QDomElement& theSection);

    /// Replaces the shipping groups by the child elements of the section, whatever their tag, as far as the key
    /// account enables their ids. Of two groups of one id the later counts. Earlier groups stay alive.
    void updateAvailableShippingGroups(const QDomElement& theSection);

    /// `client_strategy_exceptions`: the first entry replaces the record. A missing section resets it, an empty one
    /// leaves it as it was.
    void updateClientStrategyExceptions(const QDomElement& theSection);

    /// `image_exports`: replaces the list.
    void updateImageExports(const QDomElement& theSection);

public slots:
    /// Reads the document again. A missing or broken one counts as one without content; lastLoad() tells why.
    void update();

signals:
    /// The document was read again.
    void changed();

private:
    VelOrderingDetails();

    void updateDetails(VelPaymentClass thePayClass, const QDomElement& theSection);
    QList<VelOrderingDetailItem*> itemsOf(VelPaymentClass thePayClass) const;

    VelTarmLoadResult myLastLoad;
    QMap<VelPaymentClass, QList<VelOrderingDetailItem*>*> myDetails;
    QMap<QString, QString> myIconNames; ///< by the name of the payment
    QMap<VelOrderSource, QList<VelPaymentType>> myOrderSources;
    QMap<VelDiscountModel, QString> mySingleDescriptions;
    QMap<VelDiscountModel, QString> myGroupDescriptions;
    QString myCurrency;
    QString mySecondaryCurrency;
    double mySecondaryFactor = 1.0;
    bool myRequiresDOI = false;
    bool myRequiresAddressCheck = false;
    bool myRequiresSalesTaxCheck = false;
    VelClientStrategyException myClientStrategyException;
    QList<VelImageExportTypeEnum> myImageExports;
};

#endif
