#ifndef VELAUDITCHECKS_H
#define VELAUDITCHECKS_H

class VelAuditReport;
class VelAuditShop;

/// What the audit does, one after the other. Each looks through the documents for what breaks some rules, and reports
/// it. A document that is null or unreadable is left out.
namespace VelAuditChecks {

/// Whether the documents can be read, and their bytes are characters.
void checkReading(const VelAuditShop& theShop, VelAuditReport& theReport);
/// Elements, attributes and texts against the description of the documents.
void checkDescription(const VelAuditShop& theShop, VelAuditReport& theReport);
/// What the documents mean together: prices, references, fees, and what a customer will notice.
void checkMeaning(const VelAuditShop& theShop, VelAuditReport& theReport);

} // namespace VelAuditChecks

#endif
