#ifndef VELSHOPTYPES_H
#define VELSHOPTYPES_H

struct VelshopArguments;
class QTextStream;
class VelshopError;

/// Prints the product types of the price list: the products of each with their scales, and how many pages a book may
/// have. The exit code.
int listTypes(const VelshopArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
