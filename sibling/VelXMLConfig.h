#ifndef VELXMLCONFIG_H
#define VELXMLCONFIG_H

#include "sibling/VelSiblingExport.h"

#include <QDomElement>
#include <QObject>
#include <QString>

/// A configuration object backed by an XML file in the application's configuration directory.
class VELSIBLING_EXPORT VelXMLConfig : public QObject
{
    Q_OBJECT

public:
    /// Reads the file, `appearance.xml` for instance. A missing or broken one leaves a null document element.
    explicit VelXMLConfig(const QString& theFileName);

    /// The root of the file, as last read.
    QDomElement documentElement() const;

    /// The attribute of the first child of the document element that has the tag theNode; the default when node or
    /// attribute is missing or the text is no number.
    int getIntAttributeOfNode(const QString& theNode, const QString& theAttribute, int theDefault) const;

    /// Reads the file again, from where the configuration directory is by then.
    virtual void reload();

private:
    void read();

    QString myFileName;
    QDomElement myDocumentElement;
};

#endif
