#include "sibling/VelDirectoryConfig.h"

#include <QDir>

VelDirectoryConfig* VelDirectoryConfig::instance()
{
    static VelDirectoryConfig* const ourInstance = new VelDirectoryConfig;
    return ourInstance;
}

QString VelDirectoryConfig::resource(const QString& theName, bool) const
{
    return QDir(myResourceDirectory).filePath(theName);
}

void VelDirectoryConfig::setResourceDirectory(const QString& theDirectory)
{
    myResourceDirectory = theDirectory;
}

void VelDirectoryConfig::setConfigurationDirectory(const QString& theDirectory)
{
    myConfigurationDirectory = theDirectory;
}

QString VelDirectoryConfig::configurationFile(const QString& theName) const
{
    return QDir(myConfigurationDirectory).filePath(theName);
}
