#ifndef VELSHOPARTICLE_H
#define VELSHOPARTICLE_H

#include "host/VelshopError.h"

class VelProductAbstract;

/// The product of an article id, which stays the registry's; null, with the error in one line, when the price list has
/// none.
VelProductAbstract* findArticle(int theArticle, VelshopError& theError);

#endif
