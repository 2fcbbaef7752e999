#include "product/VelPrintResolutions.h"

#include "bill/VelTarmArticle.h"
#include "product/VelProductAbstract.h"

VelPrintResolutions::VelPrintResolutions(const VelProductAbstract& theProduct)
    : myGreen(theProduct.tarmArticle()->dpiForGreen()), myYellow(theProduct.tarmArticle()->dpiForYellow())
{
}
