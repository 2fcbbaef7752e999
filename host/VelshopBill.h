#ifndef VELSHOPBILL_H
#define VELSHOPBILL_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"
#include "host/VelshopWhatIf.h"

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop bill`.
struct VelshopBillArguments : VelshopArguments
{
    QString myCart;          ///< file to bill, "-" for standard input
    QString myHtmlFile;      ///< page to write, empty for none
    QString myDiscountsFile; ///< description of discounts to write, empty for none
    bool myHasOrderText = false;
    VelshopWhatIf myWhatIf; ///< what is other than in the cart
};

bool readBillArguments(const VelshopCommandLine& theLine, VelshopBillArguments& theArguments, VelshopError& theError);

/// Prints the bills of a cart, and writes the page and the description of discounts where they are asked for; the
/// latter only for an order that can be placed. The exit code; for any but 0 the error in one line.
int billCart(const VelshopBillArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
