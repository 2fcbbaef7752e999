#ifndef VELORDERINGDETAILS_H
#define VELORDERINGDETAILS_H

#include "frame/VelTarmExport.h"

#include <QDomElement>
#include <QObject>

/// What the current key account may do, read from its ordering details on the first use and whenever the key account
/// changes.
class VELTARM_EXPORT VelOrderingDetails : public QObject
{
    Q_OBJECT

public:
    /// Built on the first call, which is guarded; never deleted.
    static VelOrderingDetails* instance();

    /// Replaces the shipping groups by the child elements of the section, whatever their tag, as far as the key
    /// account enables their ids. Of two groups of one id the later counts. Earlier groups stay alive.
    void updateAvailableShippingGroups(const QDomElement& theSection);

public slots:
    /// Reads the document again. A missing or broken one counts as one without content.
    void update();

signals:
    /// The document was read again.
    void changed();

private:
    VelOrderingDetails();
};

#endif
