#ifndef VELPRODUCTFACTORY_H
#define VELPRODUCTFACTORY_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"

#include <QDomElement>
#include <QRegularExpression>

class VelProductAbstract;

/// Turns one element of the price list into one product, or refuses it. For the one thread that loads. Every product
/// is owned by the caller.
class VELTARM_EXPORT VelProductFactory
{
public:
    /// Built on first use without a lock, never freed.
    static VelProductFactory* instance();

    /// Decides by the tag, then by the content. Null for what can't be built: an article of another than exactly one
    /// arrangement, or a book or calendar whose `id` isn't compiled in, with a warning; all else without a word.
    VelProductAbstract* build(const QDomElement& theElement) const;

    /// Whether an article of the arrangement may have the text as its `id`: that of a book or calendar has to be
    /// compiled in, that of all others may be any. Without a message.
    bool isKnownId(VelProductArrangement theArrangement, const QString& theId) const;

    /// Whether an add-on of the text as its `product_class` is built.
    bool isBuiltProductClass(const QString& theProductClass) const;

    /// The steps of build(), which ask no more.
    VelProductAbstract* buildFotoBook(const QDomElement& theElement) const;
    VelProductAbstract* buildCalendar(const QDomElement& theElement) const;
    VelProductAbstract* buildCard(const QDomElement& theElement) const;
    VelProductAbstract* buildGift(const QDomElement& theElement) const;
    VelProductAbstract* buildPrintFun(const QDomElement& theElement, VelProductClass theProductClass) const;
    VelProductAbstract* buildFoto(const QDomElement& theElement) const;
    VelProductAbstract* buildContent(const QDomElement& theElement) const;
    VelProductAbstract* buildExpressFee(const QDomElement& theElement) const;
    VelProductAbstract* buildAdditionalFee(const QDomElement& theElement) const;
    VelProductAbstract* buildTransfer(const QDomElement& theElement) const;

private:
    VelProductFactory();

    VelProductAbstract* buildAddOn(const QDomElement& theElement) const;
    VelProductAbstract* buildArticle(const QDomElement& theElement) const;

    QRegularExpression myCalendarIds;
    QRegularExpression myFotoBookIds;
    QRegularExpression myExcludedProductClasses;
};

#endif
