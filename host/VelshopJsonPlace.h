#ifndef VELSHOPJSONPLACE_H
#define VELSHOPJSONPLACE_H

#include <QByteArray>
#include <QString>

/// Where a value stands in JSON text: Qt's reader keeps no places.
namespace VelshopJsonPlace {

/// The offset of a value's first byte by its path, as "items[2].count". Of a value that isn't there the offset of what
/// it is missing from. The text has to be well-formed.
int offsetOf(const QByteArray& theJson, const QString& thePath);

} // namespace VelshopJsonPlace

#endif
