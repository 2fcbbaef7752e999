#ifndef VELSHOPSHOP_H
#define VELSHOPSHOP_H

#include <QJsonObject>

struct VelshopArguments;
class QTextStream;
class VelshopError;

/// Prints the conditions of the key account: order ways with their payments, the starting choice, currencies, shipping
/// groups, product groups, image exports, flags, and whether the price list is older than its groups. The exit code.
int showShop(const VelshopArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

/// The same as data, as `velshop shop --json` prints it.
QJsonObject shopConditions();

#endif
