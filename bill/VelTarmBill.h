#ifndef VELTARMBILL_H
#define VELTARMBILL_H

#include "bill/VelOrderStatistic.h"
#include "bill/VelTarmBillPositionList.h"
#include "frame/VelExpressType.h"
#include "frame/VelTarmExport.h"
#include "frame/VelTarmStatus.h"

class VelProductAbstract;
class VelTarmBillPosition;

/// The cart of one shipping group, priced line by line. The bill owns its positions.
class VELTARM_EXPORT VelTarmBill
{
public:
    /// Copies its arguments and prices every product of the statistic, in the statistic's order, under the status.
    VelTarmBill(int theShippingGroup, const VelOrderStatistic& theStatistic, const VelExpressType& theExpressType,
                const VelTarmStatus& theStatus);

    /// The copy has positions of its own.
    VelTarmBill(const VelTarmBill& theOther);
    VelTarmBill& operator=(const VelTarmBill&) = delete;
    ~VelTarmBill();

    int shippingGroup() const { return myShippingGroup; }

    /// A copy of the list; the positions stay the bill's.
    VelTarmBillPositionList orderPositions() const { return myPositions; }

    /// The first position of the product; null when there is none or when that one is invalid.
    VelTarmBillPosition* billPosition(const VelProductAbstract* theProduct) const;

    /// Appends the list; the bill takes the positions over.
    void addOrderPositions(const VelTarmBillPositionList& thePositions);

private:
    void init();

    VelTarmBillPositionList myPositions;
    int myShippingGroup;
    VelTarmStatus myStatus;
    VelOrderStatistic myStatistic;
    VelExpressType myExpressType;
};

#endif
