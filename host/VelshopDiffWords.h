#ifndef VELSHOPDIFFWORDS_H
#define VELSHOPDIFFWORDS_H

#include "insight/VelShopDifference.h"
#include "ordering/VelCurrency.h"

#include <QStringList>

/// The words for a difference of two shops, which its text and its page share. Each side prints money in its own
/// currency.
class VelshopDiffWords
{
public:
    VelshopDiffWords(const VelShopSnapshot& theOld, const VelShopSnapshot& theNew);

    /// A line of a comparison: what it is about, and what it was and is.
    struct Row
    {
        QString myName;
        QString myOld;
        QString myNew;
    };
    /// Totals that changed alike.
    struct Totals
    {
        QString myTitle; ///< the order sources, and what the rows go along
        QVector<Row> myRows;
    };

    /// As "article", "add-on" or "payment fee".
    static QString kind(VelShopEntry::Kind theKind);
    /// The key of the document: "0", "1" or "2".
    static QString expressKey(VelExpressTypeEnum theExpress);
    /// As "103 Foto 10x15" or "transfer of group 1: 9001 Versand".
    static QString title(const VelShopEntry& theEntry);
    /// As "1 added, 3 changed".
    static QString summary(const VelShopDifference& theDifference);

    /// The fields; those that changed alike by several order sources are one row.
    QVector<Row> rows(const QVector<VelShopFieldChange>& theChanges) const;
    /// The totals; order sources by which they changed alike stand together.
    QVector<Totals> totals(const QVector<VelTotalsChange>& theChanges) const;
    /// What a cart comes to, and the terms of it that differ.
    Row total(const VelShopCartChange& theCart) const;
    QVector<Row> terms(const VelShopCartChange& theCart) const;

private:
    QString value(const QString& theName, const QVariant& theValue, const VelCurrency& theCurrency) const;
    Row row(const VelTotalsInterval& theInterval, bool theIsBySum) const;

    VelCurrency myOldCurrency;
    VelCurrency myNewCurrency;
};

#endif
