#ifndef VELAUDITCATALOG_H
#define VELAUDITCATALOG_H

#include "frame/VelExpressType.h"
#include "frame/VelOrderSource.h"
#include "insight/VelAuditShop.h"

#include <QDomElement>
#include <QHash>
#include <QList>
#include <QMultiHash>
#include <QSet>
#include <QString>
#include <QVector>

/**
 * What the documents of an account mean, as far as rules compare one place with another: who has which number, which
 * order ways are offered, what ships what. It is made once for an audit, by the classes that read the documents.
 * Elements stay those of the documents; a document that isn't there leaves its part empty.
 */
class VelAuditCatalog
{
    Q_DISABLE_COPY(VelAuditCatalog)

public:
    /// An element of the price list with what other places name it by.
    struct Entry
    {
        enum Kind { ARTICLE, ADD_ON, PAYMENT_FEE, TRANSFER, EXPRESS_FEE };

        Kind myKind;
        QDomElement myElement;
        int myId;                     ///< 0 where it has none
        int myGroup;                  ///< -1 where it has none
        bool myIsBuilt;               ///< whether a product comes of it, as far as its own attributes say
        bool myIsPrintFun;            ///< a book, calendar, card or gift that is built
        bool myIsUnknownBook;         ///< a book or calendar whose id isn't compiled in
        bool myHasBadTimes;           ///< whether reading it warns of a shipping time
        VelExpressType myExpressType; ///< of an express fee
        int myPayment;                ///< of a payment fee

        bool isSold() const { return myKind == ARTICLE || myKind == ADD_ON; }
        /// The price entries, numbered as VelTarmPriceBand::entry() numbers them.
        QVector<QDomElement> prices() const;
    };

    /// An order way that customers may take.
    struct Offer
    {
        VelOrderSource mySource;
        QDomElement myElement;
        QList<int> myPayments; ///< as the document names them; empty where the library takes the usual ones
    };

    /// The documents are borrowed.
    explicit VelAuditCatalog(const VelAuditShop& theShop);

    /// The two documents, null for one that isn't there or can't be read.
    const VelAuditDocument* priceList() const { return myPriceList; }
    const VelAuditDocument* orderingDetails() const { return myOrderingDetails; }
    /// A section of theirs, null for none.
    QDomElement priceListSection(const QString& theTag) const;
    QDomElement orderingSection(const QString& theTag) const;

    /// All entries in document order, section by section.
    const QVector<Entry>& entries() const { return myEntries; }
    /// The first built article or add-on of a number; null for none.
    const Entry* sold(int theId) const { return mySold.value(theId, nullptr); }

    /// The order ways that are offered, each once: of two elements the later counts.
    const QVector<Offer>& offers() const { return myOffers; }
    /// Those ways by which customers may order; all concrete ways where there are no ordering details.
    const QList<VelOrderSource>& sources() const { return mySources; }

    /// Whether ordering details list the group; without ordering details they all are.
    bool isGroupKnown(int theGroup) const { return !myOrderingDetails || myGroups.contains(theGroup); }
    bool hasTransfer(int theGroup) const { return myTransferGroups.contains(theGroup); }
    bool hasArticles(int theGroup) const { return myArticleGroups.contains(theGroup); }
    /// Whether some article of the group names a time for the express class.
    bool hasShippingTime(int theGroup, const VelExpressType& theClass) const;

private:
    void readSection(const QString& theTag);
    void readEntry(const QDomElement& theElement, Entry::Kind theKind);
    void readTimes(Entry& theEntry);
    void readOffers();

    const VelAuditDocument* myPriceList;
    const VelAuditDocument* myOrderingDetails;
    QVector<Entry> myEntries;
    QHash<int, const Entry*> mySold;
    QVector<Offer> myOffers;
    QList<VelOrderSource> mySources;
    QSet<int> myGroups;
    QSet<int> myTransferGroups;
    QSet<int> myArticleGroups;
    QMultiHash<int, int> myTimes; ///< group to express class
};

#endif
