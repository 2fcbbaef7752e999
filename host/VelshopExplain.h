#ifndef VELSHOPEXPLAIN_H
#define VELSHOPEXPLAIN_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"
#include "host/VelshopWhatIf.h"

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop explain`.
struct VelshopExplainArguments : VelshopArguments
{
    QString myCart; ///< file to explain, "-" for standard input; empty for an article
    int myArticle = 0;
    int myCount = 0;
    VelshopWhatIf myWhatIf;
    int myLevel = 0; ///< that an add-on inherits
    bool myIsAll = false;
    bool myIsComparison = false; ///< with the cart as it stands
    QString myHtmlFile;          ///< page to write, empty for none
};

bool readExplainArguments(const VelshopCommandLine& theLine, VelshopExplainArguments& theArguments,
                          VelshopError& theError);

/// Prints why a cart, or so many pieces of an article, cost what they do. The exit code; for any but 0 the error in one
/// line.
int explain(const VelshopExplainArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
