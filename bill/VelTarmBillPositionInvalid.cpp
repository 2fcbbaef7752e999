#include "bill/VelTarmBillPositionInvalid.h"

#include <QDebug>

void VelTarmBillPositionInvalid::dump() const
{
    qWarning().noquote() << QStringLiteral("# %1, Nicht bestellbar").arg(productName());
}
