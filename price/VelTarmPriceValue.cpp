#include "price/VelTarmPriceValue.h"

#include "sibling/VelXMLParser.h"

namespace {

const QString STR_PRICE = QStringLiteral("price");
const QString STR_TRANSFER_UNIT_PRICE = QStringLiteral("transfer_unit_price");
const QString STR_TRANSFER_BASE_PRICE = QStringLiteral("transfer_base_price");
const QString STR_NON_OFFER_PRICE = QStringLiteral("non_offer_price");
const QString STR_END_OFFER_DATE = QStringLiteral("end_offer_date");

/// The Unix epoch, by way of its text: read for each entry it would dominate a load.
const QDateTime& defaultEndOfOffer()
{
    static const QDateTime epoch =
        QDateTime::fromString(QDateTime::fromSecsSinceEpoch(0).toString(Qt::ISODate), Qt::ISODate);
    return epoch;
}

} // namespace

VelTarmPriceValue::VelTarmPriceValue(const QDomElement& theEntry)
    : myPrice(VelXMLParser::intAttribute(theEntry, STR_PRICE, NO_PRICE))
    , myDiscountLimit(theEntry)
    , myUnitTransferPrice(VelXMLParser::intAttribute(theEntry, STR_TRANSFER_UNIT_PRICE, 0))
    , myBaseTransferPrice(VelXMLParser::intAttribute(theEntry, STR_TRANSFER_BASE_PRICE, 0))
    , myNonOfferPrice(VelXMLParser::intAttribute(theEntry, STR_NON_OFFER_PRICE, -1))
    , myEndOfferDate(VelXMLParser::dateTimeAttribute(theEntry, STR_END_OFFER_DATE, Qt::ISODate, defaultEndOfOffer()))
    , myEndOfOffer(myNonOfferPrice == -1 ? 0 : myEndOfferDate.toMSecsSinceEpoch()) // asks the system for the time zone
{
}

VelTarmPriceValue* VelTarmPriceValue::invalidPrice()
{
    static VelTarmPriceValue invalid{QDomElement()};
    return &invalid;
}

bool VelTarmPriceValue::operator==(const VelTarmPriceValue& theOther) const
{
    return myPrice == theOther.myPrice && myDiscountLimit == theOther.myDiscountLimit &&
           myUnitTransferPrice == theOther.myUnitTransferPrice && myBaseTransferPrice == theOther.myBaseTransferPrice &&
           myNonOfferPrice == theOther.myNonOfferPrice && myEndOfferDate == theOther.myEndOfferDate;
}
