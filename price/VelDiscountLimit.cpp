#include "price/VelDiscountLimit.h"

#include "frame/EnumHelper.h"
#include "frame/VelEnumFlags.h"
#include "sibling/VelXMLParser.h"

#include <QMap>

#include <tuple>

namespace {

const QString STR_TYPE = QStringLiteral("type");
const QString STR_LEVEL = QStringLiteral("level");
const QString STR_QUANTITY = QStringLiteral("quantity");
const QString STR_TRANSFER = QStringLiteral("transfer");
const QString STR_EXPRESS_FEE = QStringLiteral("express_fee");
const QString STR_TYPE_BULK = QStringLiteral("B");
const QString STR_TYPE_BULK_TRANSFER = QStringLiteral("F");
const QString STR_TYPE_EXPRESS_FEE = QStringLiteral("X");

/// The tag of the product that a price entry belongs to: entry, group of entries, product.
QString productTag(const QDomElement& theEntry)
{
    return theEntry.parentNode().parentNode().nodeName();
}

QString defaultType(const QString& theProductTag)
{
    if (theProductTag == STR_TRANSFER)
        return STR_TYPE_BULK_TRANSFER;
    if (theProductTag == STR_EXPRESS_FEE)
        return STR_TYPE_EXPRESS_FEE;
    return STR_TYPE_BULK;
}

/// The one place where the case of a discount letter counts: "P" is a package price, "p" that of a single item.
bool isPackageType(const QString& theType, const QString& theProductTag)
{
    return theType.at(0).isUpper() && theProductTag != STR_TRANSFER && theProductTag != STR_EXPRESS_FEE;
}

} // namespace

VelDiscountLimit::VelDiscountLimit(VelDiscountModel theDiscountModel, int theLowerLimit, int theUpperLimit,
                                   int theLevel, bool theIsPackage)
    : myDiscountModel(theDiscountModel)
    , myLowerLimit(theLowerLimit)
    , myUpperLimit(theUpperLimit)
    , myLevel(theLevel)
    , myIsPackage(theIsPackage)
{
}

VelDiscountLimit::VelDiscountLimit(const VelDiscountLimit& theLimit, VelDiscountModel theDiscountModel)
    : VelDiscountLimit(theDiscountModel == DISCOUNT_MODEL_UNDEFINED ? theLimit.myDiscountModel : theDiscountModel,
                       theLimit.myLowerLimit, theLimit.myUpperLimit, theLimit.myLevel, theLimit.myIsPackage)
{
}

VelDiscountLimit::VelDiscountLimit(const QDomElement& theEntry)
    : myLowerLimit(VelXMLParser::intAttribute(theEntry, STR_QUANTITY, 0))
    , myLevel(VelXMLParser::intAttribute(theEntry, STR_LEVEL, 0))
{
    const QString tag = productTag(theEntry);
    QString type = VelXMLParser::attribute(theEntry, STR_TYPE, QString());
    if (type.isEmpty())
        type = defaultType(tag);
    myDiscountModel = EnumHelper::decodeDiscountModel(type);
    myIsPackage = isPackageType(type, tag);
}

void VelDiscountLimit::removeSupersededBaseLimits(QSet<VelDiscountLimit>& theLimits)
{
    QMap<VelDiscountModel, int> limitsOfModel;
    for (const VelDiscountLimit& limit : qAsConst(theLimits))
        ++limitsOfModel[limit.discountModel()];
    for (const VelDiscountLimit& limit : theLimits.values())
        if (limit.isBaseLimit() && limitsOfModel.value(limit.discountModel()) > 1) {
            theLimits.remove(limit);
            --limitsOfModel[limit.discountModel()];
        }
}

bool VelDiscountLimit::isTransferEntry(const QDomElement& theEntry)
{
    return productTag(theEntry) == STR_TRANSFER;
}

bool VelDiscountLimit::operator==(const VelDiscountLimit& theOther) const
{
    return myDiscountModel == theOther.myDiscountModel && myLowerLimit == theOther.myLowerLimit &&
           myUpperLimit == theOther.myUpperLimit && myLevel == theOther.myLevel && myIsPackage == theOther.myIsPackage;
}

bool VelDiscountLimit::operator<(const VelDiscountLimit& theOther) const
{
    return std::tie(myDiscountModel, myLowerLimit, myUpperLimit) <
           std::tie(theOther.myDiscountModel, theOther.myLowerLimit, theOther.myUpperLimit);
}

QDebug operator<<(QDebug theDebug, const VelDiscountLimit& theLimit)
{
    theDebug << "\nLower Limit:" << theLimit.lowerLimit() << "\n";
    theDebug << "Upper Limit:" << theLimit.upperLimit() << "\n";
    theDebug << "Level:" << theLimit.level() << "\n";
    theDebug << "IsPackage:" << (theLimit.isPackage() ? "true" : "false") << "\n";
    // "Dicount" is spelled so. The model is printed as if it were bits: 3 gives the letters of 1 and 2.
    theDebug << "Dicount Model:" << joinedBitKeys(EnumHelper::globalMapDiscountModelString, theLimit.discountModel())
             << "\n";
    return theDebug;
}
