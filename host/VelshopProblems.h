#ifndef VELSHOPPROBLEMS_H
#define VELSHOPPROBLEMS_H

#include <QJsonArray>
#include <QList>
#include <QString>
#include <QStringList>

class VelOrderSource;
class VelProductAbstract;
class VelTarmOrder;
struct VelTarmOrderObjection;

/// The order desk's words for what stands against an order.
namespace VelshopProblems {

/// As "142 Indexprint zur CD: no price by NET, MAIL".
QString text(const VelTarmOrderObjection& theObjection, const VelTarmOrder& theOrder);
QStringList texts(const QList<VelTarmOrderObjection>& theObjections, const VelTarmOrder& theOrder);

/// The same as data: `kind`, and what the kind has of `article`, `fee`, `count`, `limit` and `payment`.
QJsonArray data(const QList<VelTarmOrderObjection>& theObjections);

/// Only what stands against the order as a whole, not against one of its bills.
QList<VelTarmOrderObjection> ofOrder(const VelTarmOrder& theOrder);

/// Only what stands against the products of the order: no fees, no limit, no amount.
QStringList ofProducts(const VelTarmOrder& theOrder);

/// Why so many pieces of the product have no price by that way; empty where they have one, whoever may sell it.
QStringList ofPrice(VelProductAbstract* theProduct, int theCount, const VelOrderSource& theSource);

/// Whether the product has a price in that order.
bool hasPrice(const VelProductAbstract* theProduct, const VelTarmOrder& theOrder);

/// Whether so many pieces of the product have a price by that way, whoever may sell it.
bool hasPrice(VelProductAbstract* theProduct, int theCount, const VelOrderSource& theSource);

/// Whether the product can be ordered by that way, in any number.
bool isOrderable(VelProductAbstract* theProduct, const VelOrderSource& theSource);

} // namespace VelshopProblems

#endif
