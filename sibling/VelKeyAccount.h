#ifndef VELKEYACCOUNT_H
#define VELKEYACCOUNT_H

#include "sibling/VelSiblingExport.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QObject>

/// The application's one key account: where its documents are and which shipping groups it uses.
class VELSIBLING_EXPORT VelKeyAccount : public QObject
{
    Q_OBJECT

public:
    /// Built on first use, lives to the end of the process.
    static VelKeyAccount* instance();

    /// The price list of the current key account; it need not exist. The flag is not looked at.
    QFileInfo pricelistXMLFileInfo(bool theFlag) const;
    /// The ordering details of the current key account; they need not exist. The flag is not looked at.
    QFileInfo orderingDetailsXMLFileInfo(bool theFlag) const;

    /// Unless set otherwise, every id from 0 up is in use and no negative one.
    bool shippingGroupEnabled(int theId) const;

    /// For the host: another price list; emits nothing.
    void setPricelistXMLFileInfo(const QFileInfo& theFile);
    /// For the host: other ordering details; emits nothing.
    void setOrderingDetailsXMLFileInfo(const QFileInfo& theFile);
    /// For the host: whether that shipping group is in use; emits nothing.
    void setShippingGroupEnabled(int theId, bool theEnabled);

    /// For the host: changes to the key account whose folder holds `pricelist.xml` and `orderingdetails.xml`. Takes the
    /// price list's time stamp from the file (none when it is missing) and emits applicationKeyAccountChanged() once.
    void activate(const QDir& theKeyAccount);

signals:
    /// Another key account, or other documents of the same one: whatever was read from them is to be read again.
    void applicationKeyAccountChanged();

private:
    VelKeyAccount() = default;

    QFileInfo myPricelist;
    QFileInfo myOrderingDetails;
    QHash<int, bool> myShippingGroups;
};

#endif
