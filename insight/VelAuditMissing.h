#ifndef VELAUDITMISSING_H
#define VELAUDITMISSING_H

#include "insight/VelDocumentDescription.h"

class VelAuditReport;
struct VelAuditDocument;

/// What an author has to write, or would want to.
namespace VelAuditMissing {

/// Reports the attributes and elements that the description asks for and the element doesn't have.
void check(const VelAuditDocument& theDocument, const QDomElement& theElement,
           const VelElementDescription& theDescription, VelAuditReport& theReport);

} // namespace VelAuditMissing

#endif
