#include "insight/VelAuditPrices.h"

#include <algorithm>

namespace {

const QString STR_SHIPPING_TIMES = QStringLiteral("shipping_times");

/// Without the shipping times, which warn while they are read: the audit speaks of them in its own way.
QDomElement withoutTimes(const QDomElement& theElement)
{
    if (theElement.firstChildElement(STR_SHIPPING_TIMES).isNull())
        return theElement;
    QDomElement copy = theElement.cloneNode().toElement();
    copy.removeChild(copy.firstChildElement(STR_SHIPPING_TIMES));
    return copy;
}

} // namespace

VelAuditPrices::VelAuditPrices(const VelAuditCatalog::Entry& theEntry)
    : myEntry(&theEntry)
    , myElements(theEntry.prices())
    , myProduct(new VelProductAbstract(theEntry.myHasBadTimes ? withoutTimes(theEntry.myElement) : theEntry.myElement,
                                       PRODUCT_CLASS_FEE))
    , mySources(view(VelOrderSource::onlineMailOrder()).pricedOrderSources())
{
}

bool VelAuditPrices::isShippingByProducts() const
{
    return view(VelOrderSource::onlineMailOrder()).transferModel() == TRANSFER_MODEL_2;
}

QList<VelOrderSource> VelAuditPrices::differing(const QList<VelOrderSource>& theSources) const
{
    QList<VelOrderSource> differing;
    for (const VelOrderSource& source : theSources) {
        const VelTarmPriceView mine = view(source);
        const auto isSame = [&](const VelOrderSource& theOther) { return view(theOther).hasSameBands(mine); };
        if (!mine.bands().isEmpty() && std::none_of(differing.cbegin(), differing.cend(), isSame))
            differing.append(source);
    }
    return differing;
}
