#include "ordering/VelTarmShippingGroup.h"

#include "frame/EnumHelper.h"
#include "sibling/VelXMLParser.h"

#include <QDebug>

namespace {

const QString STR_GROUP = QStringLiteral("group");
const QString STR_ID = QStringLiteral("id");
const QString STR_NAME = QStringLiteral("name");
const QString STR_TRANSFER_MODEL = QStringLiteral("transfer_model");
const QString STR_LAST_CHANGE = QStringLiteral("last_change");
const QString STR_MAX_ORDER_ITEMS = QStringLiteral("max_order_items");
const QString STR_DEFAULT_LAST_CHANGE = QStringLiteral("1970-05-26T09:30:00");

} // namespace

VelTarmShippingGroup::VelTarmShippingGroup(const QDomElement& theElement, int thePriceListTabPosition)
    : myPriceListTabPosition(thePriceListTabPosition)
{
    parseShippingGroup(theElement);
}

void VelTarmShippingGroup::parseShippingGroup(const QDomElement& theElement)
{
    if (theElement.tagName() != STR_GROUP) {
        qWarning("VelTarmShippingGroup::parseShippingGroup(const QDomElement &), Tag name is not group");
        return;
    }
    myId = VelXMLParser::intAttribute(theElement, STR_ID, -1);
    myName = VelXMLParser::attribute(theElement, STR_NAME, QString());
    myTransferModel =
        EnumHelper::decodeTransferModel(VelXMLParser::attribute(theElement, STR_TRANSFER_MODEL, QString()));
    myLastChange = VelXMLParser::dateTimeAttribute(theElement, STR_LAST_CHANGE, Qt::ISODate,
                                                   QDateTime::fromString(STR_DEFAULT_LAST_CHANGE, Qt::ISODate));
    myMaxOrderItems = VelXMLParser::intAttribute(theElement, STR_MAX_ORDER_ITEMS, -1);
}

bool lessThanPriceListTabPosition(const VelTarmShippingGroup* theLeft, const VelTarmShippingGroup* theRight)
{
    return theLeft->priceListTabPosition() < theRight->priceListTabPosition();
}
