#ifndef VELSHOPGAPSPAGE_H
#define VELSHOPGAPSPAGE_H

#include <QByteArray>
#include <QString>

class VelshopPage;
struct VelshopGapsSheet;

/// The map of gaps as a part of a page. It begins a `div` of the class "gaps", to which style and script keep.
namespace VelshopGapsMap {

/// What the page that holds the map has to have for it.
QString style();
/// Filters the rows; without it all are shown. A page may hold several maps.
QString script();

/// Writes the filters, what the colours mean, the matrix of the articles and that of the fees.
void write(const VelshopGapsSheet& theSheet, VelshopPage& thePage);

} // namespace VelshopGapsMap

/// The map on a page of its own, with the shop's name, which may be empty.
QByteArray gapsPage(const VelshopGapsSheet& theSheet, const QString& theShop);

#endif
