#ifndef VELDIRECTORYCONFIG_H
#define VELDIRECTORYCONFIG_H

#include "sibling/VelSiblingExport.h"

#include <QString>

/// The application's directories. One that was not set is the working directory.
class VELSIBLING_EXPORT VelDirectoryConfig
{
public:
    /// Built on first use, lives to the end of the process.
    static VelDirectoryConfig* instance();

    /// The path of a resource of the application, which need not exist. The flag is not looked at.
    QString resource(const QString& theName, bool theFlag) const;

    /// For the host: where resources are found.
    void setResourceDirectory(const QString& theDirectory);
    /// For the host: where VelXMLConfig finds its files.
    void setConfigurationDirectory(const QString& theDirectory);

private:
    friend class VelXMLConfig;

    VelDirectoryConfig() = default;
    QString configurationFile(const QString& theName) const;

    QString myResourceDirectory;
    QString myConfigurationDirectory;
};

#endif
