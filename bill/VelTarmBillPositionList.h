#ifndef VELTARMBILLPOSITIONLIST_H
#define VELTARMBILLPOSITIONLIST_H

#include "bill/VelTarmBillPositionAbstract.h"
#include "frame/VelTarmExport.h"

#include <QList>

/// The list that the price engine fills and a bill takes over. It owns nothing: whoever holds the positions in the
/// end, normally the bill, releases them.
class VELTARM_EXPORT VelTarmBillPositionList : public QList<VelTarmBillPositionAbstract*>
{
};

#endif
