#ifndef VELPRODUCTPRINTFUN_H
#define VELPRODUCTPRINTFUN_H

#include "product/VelProductAbstract.h"
#include "sibling/VelProductType.h"

/// A book, calendar, card or gift: a product made from pages.
///
/// Product type and page limits are read once, with the first element; an update leaves them, and the registry relies
/// on it: a product keeps its place in the list of its type.
class VELTARM_EXPORT VelProductPrintFun : public VelProductAbstract
{
public:
    /// Reads an element of the price list; the class is one of PRODUCT_CLASS_PRINT_FUN_MASK.
    VelProductPrintFun(const QDomElement& theElement, VelProductClass theProductClass);

    /// From the order-text line TYPE=; unknown when the table of types doesn't hold it.
    VelProductType productType() const { return myProductType; }

    /// Attribute `min_pages`, 0 when missing; kept as it stands, without any check.
    int minPages() const { return myMinPages; }
    /// Attribute `max_pages`, 0 when missing; kept as it stands, without any check.
    int maxPages() const { return myMaxPages; }
    /// Attribute `page_step`, 0 when missing; kept as it stands, without any check.
    int pageIncrement() const { return myPageIncrement; }

private:
    VelProductType myProductType;
    int myMinPages;
    int myMaxPages;
    int myPageIncrement;
};

#endif
