#ifndef PRICEROWS_H
#define PRICEROWS_H

#include "frame/VelEnumerations.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

/// Order sources by number: three input sources with three delivery types each.
const int SOURCES = 9;
const int SOURCE_ONLINE_MAIL_ORDER = 1;

/// One price under one order source.
struct PriceRow
{
    int mySource;
    VelDiscountModel myModel;
    int myLevel;
    int myQuantity;
    int myUpperLimit; ///< one less than where the next level begins; -1 without one
    int myPrice;
    int myOldPrice;
    std::int64_t myOfferEnd; ///< seconds since the epoch
    int myBaseTransfer;
    int myUnitTransfer;
    bool myIsPackage;
};

enum class Section { ARTICLES, ADD_ONS, TRANSFERS, PAYMENT_FEES, EXPRESS_FEES };

/// One entry of a price list.
struct ArticleRow
{
    Section mySection;
    int myId;
    int myGroup; ///< the shipping group; of a payment fee the payment
    VelTransferModel myTransferModel;
    bool myIsPrintFun;
    std::vector<PriceRow> myPrices; ///< by source, model and level
    std::vector<int> myLinks;       ///< the ids that an add-on fits, rising
};

/// A price list read by a stream reader, without any class of the library: what is compared with it must not depend on
/// it. In document order. No entry may be without a price.
std::vector<ArticleRow> readPriceRows(const QByteArray& thePriceList);

#endif
