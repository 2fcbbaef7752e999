#include "product/VelProductPrintFun.h"

#include "sibling/VelXMLParser.h"

namespace {

const QString STR_MIN_PAGES = QStringLiteral("min_pages");
const QString STR_MAX_PAGES = QStringLiteral("max_pages");
const QString STR_PAGE_STEP = QStringLiteral("page_step");

} // namespace

VelProductPrintFun::VelProductPrintFun(const QDomElement& theElement, VelProductClass theProductClass)
    : VelProductAbstract(theElement, theProductClass)
    , myProductType(orderTxtType())
    , myMinPages(VelXMLParser::intAttribute(theElement, STR_MIN_PAGES, 0))
    , myMaxPages(VelXMLParser::intAttribute(theElement, STR_MAX_PAGES, 0))
    , myPageIncrement(VelXMLParser::intAttribute(theElement, STR_PAGE_STEP, 0))
{
}
