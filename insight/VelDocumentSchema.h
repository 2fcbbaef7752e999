#ifndef VELDOCUMENTSCHEMA_H
#define VELDOCUMENTSCHEMA_H

#include "insight/VelDocumentDescription.h"
#include "insight/VelInsightExport.h"

#include <QByteArray>

/**
 * The description of a document as an XML schema (XSD 1.0), for editors that complete names and show their meaning. It
 * refuses unknown names, values of a wrong type or out of the range that makes sense, and unknown words; children stand
 * in any order. A tag that the library leaves free has the usual name. What is read without effect is refused.
 *
 * What one value says about another can't be told in a schema: that is in the texts of its documentation.
 */
namespace VelDocumentSchema {

/// The whole schema, UTF-8.
VELINSIGHT_EXPORT QByteArray of(const VelDocumentDescription& theDocument);

/// The name of its file: "pricelist.xsd".
VELINSIGHT_EXPORT QString fileName(const VelDocumentDescription& theDocument);

} // namespace VelDocumentSchema

#endif
