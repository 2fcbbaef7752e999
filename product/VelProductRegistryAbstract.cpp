#include "product/VelProductRegistryAbstract.h"

#include "frame/VelChildElements.h"
#include "product/VelProductFactory.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_GROUP = QStringLiteral("group");

} // namespace

void VelProductRegistryAbstract::read(const QDomElement& theSection, const QString& theTag)
{
    for (const QDomElement& element : VelChildElements(theSection, theTag))
        registerProduct(element, buildAbstractProduct(element));
}

VelProductAbstract* VelProductRegistryAbstract::buildAbstractProduct(const QDomElement& theElement)
{
    return VelProductFactory::instance()->build(theElement);
}

int VelProductRegistryAbstract::readShippingGroupId(const QDomElement& theElement) const
{
    return VelXMLParser::intAttribute(theElement, STR_GROUP, -1);
}
