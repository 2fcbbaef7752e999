#include "sibling/VelXMLConfig.h"

#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelXMLLoader.h"
#include "sibling/VelXMLParser.h"

#include <QFileInfo>

VelXMLConfig::VelXMLConfig(const QString& theFileName) : myFileName(theFileName)
{
    read();
}

QDomElement VelXMLConfig::documentElement() const
{
    return myDocumentElement;
}

int VelXMLConfig::getIntAttributeOfNode(const QString& theNode, const QString& theAttribute, int theDefault) const
{
    return VelXMLParser::intAttribute(myDocumentElement.firstChildElement(theNode), theAttribute, theDefault);
}

void VelXMLConfig::reload()
{
    read();
}

void VelXMLConfig::read()
{
    const QFileInfo file(VelDirectoryConfig::instance()->configurationFile(myFileName));
    myDocumentElement = VelXMLLoader::loadDocumentElement(file);
}
