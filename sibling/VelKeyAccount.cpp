#include "sibling/VelKeyAccount.h"

#include "sibling/VelKeyAccountFileTimeStampManager.h"

#include <QDateTime>

namespace {

const QString STR_PRICELIST_FILE = QStringLiteral("pricelist.xml");
const QString STR_ORDERING_DETAILS_FILE = QStringLiteral("orderingdetails.xml");

/// A file may appear or change while the account is current.
QFileInfo uncached(QFileInfo theFile)
{
    theFile.setCaching(false);
    return theFile;
}

} // namespace

VelKeyAccount* VelKeyAccount::instance()
{
    static VelKeyAccount* const ourInstance = new VelKeyAccount;
    return ourInstance;
}

QFileInfo VelKeyAccount::pricelistXMLFileInfo(bool) const
{
    return myPricelist;
}

QFileInfo VelKeyAccount::orderingDetailsXMLFileInfo(bool) const
{
    return myOrderingDetails;
}

bool VelKeyAccount::shippingGroupEnabled(int theId) const
{
    return myShippingGroups.value(theId, theId >= 0);
}

void VelKeyAccount::setPricelistXMLFileInfo(const QFileInfo& theFile)
{
    myPricelist = uncached(theFile);
}

void VelKeyAccount::setOrderingDetailsXMLFileInfo(const QFileInfo& theFile)
{
    myOrderingDetails = uncached(theFile);
}

void VelKeyAccount::setShippingGroupEnabled(int theId, bool theEnabled)
{
    myShippingGroups.insert(theId, theEnabled);
}

void VelKeyAccount::activate(const QDir& theKeyAccount)
{
    setPricelistXMLFileInfo(QFileInfo(theKeyAccount, STR_PRICELIST_FILE));
    setOrderingDetailsXMLFileInfo(QFileInfo(theKeyAccount, STR_ORDERING_DETAILS_FILE));
    VelKeyAccountFileTimeStampManager::instance()->setPricelistTimeStamp(myPricelist.lastModified());
    emit applicationKeyAccountChanged();
}
