#ifndef VELTARMCONFIG_H
#define VELTARMCONFIG_H

#include "frame/VelOrderSource.h"
#include "frame/VelTarmExport.h"
#include "sibling/VelXMLConfig.h"

#include <QList>
#include <QString>

/// What the start of the module needs of the application's `appearance.xml`.
class VELTARM_EXPORT VelTarmConfig : public VelXMLConfig
{
    Q_OBJECT

public:
    /// Built on first use without a lock.
    static VelTarmConfig* instance();

    VelTarmConfig();

    /// The attributes `inputSource` and `deliveryType` of `defaultOrderSource`: plain numbers, not text keys. -1 stands
    /// for a missing one, so that a missing element gives the wild source.
    VelOrderSource defaultOrderSource() const;

    /// The letters of the discount models in upper case, each once.
    QList<QString> supportedDiscountTypes() const;
};

#endif
