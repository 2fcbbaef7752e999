#ifndef VELDESCRIBEDDOCUMENTS_H
#define VELDESCRIBEDDOCUMENTS_H

#include "insight/VelDocumentDescription.h"

/// The roots of all documents, each with all that it holds.
namespace VelDescribedDocuments {

VelElementDescription priceList();
VelElementDescription orderingDetails();
VelElementDescription currencies();
VelElementDescription appearance();
VelElementDescription coupon();
VelElementDescription paymentIcons();

} // namespace VelDescribedDocuments

#endif
