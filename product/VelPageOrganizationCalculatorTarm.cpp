#include "product/VelPageOrganizationCalculatorTarm.h"

#include "product/VelProductAddOn.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistry.h"

VelPageCountOrganization VelPageOrganizationCalculatorTarm::createPageOrganization(const VelProductType& theType) const
{
    return theType.productClass() == PRODUCT_CLASS_FOTO_BOOK ? availableNumOfPagesBook(theType)
                                                             : VelPageCountOrganization();
}

VelPageCountOrganization VelPageOrganizationCalculatorTarm::availableNumOfPagesBook(const VelProductType& theType) const
{
    const VelProductRegistry* registry = VelProductRegistry::instance();
    const VelProductPrintFun* book = registry->findFotoBook(theType);
    if (!book)
        return VelPageCountOrganization(0, 0, 0);
    const bool canGrow = registry->findPagePackage(book->articleID()) != nullptr;
    return VelPageCountOrganization(static_cast<unsigned>(book->minPages()),
                                    static_cast<unsigned>(canGrow ? book->maxPages() : book->minPages()),
                                    static_cast<unsigned>(book->pageIncrement()));
}
