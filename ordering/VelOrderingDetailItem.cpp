#include "ordering/VelOrderingDetailItem.h"

#include "sibling/VelXMLParser.h"

namespace {

const QString STR_NAME = QStringLiteral("name");
const QString STR_BRAND = QStringLiteral("brand");
const QString STR_BLOCKABLE = QStringLiteral("blockable");
const QString STR_ID = QStringLiteral("id");

} // namespace

VelOrderingDetailItem::VelOrderingDetailItem(VelPaymentClass thePayClass, const QDomElement& theElement)
    : myName(VelXMLParser::attribute(theElement, STR_NAME, QString()))
    , myBrand(VelXMLParser::attribute(theElement, STR_BRAND, QString()))
    , myCanBeBlockedForDefaultingUsers(VelXMLParser::boolAttribute(theElement, STR_BLOCKABLE, false))
    , myId(VelXMLParser::intAttribute(theElement, STR_ID, 0))
    , myPayClass(thePayClass)
{
}

VelPaymentType VelOrderingDetailItem::paymentType() const
{
    switch (myPayClass) {
    case PAYMENT_CLASS_CREDIT_CARDS:
        return PAYMENT_TYPE_1;
    case PAYMENT_CLASS_ONLINE_TRANSFER_METHODS:
        return PAYMENT_TYPE_9;
    case PAYMENT_CLASS_PAY_METHODS:
        break;
    }
    return static_cast<VelPaymentType>(myId);
}
