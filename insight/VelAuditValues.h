#ifndef VELAUDITVALUES_H
#define VELAUDITVALUES_H

class VelAuditSite;

/// Whether the library makes of a value what is written. The conversions are its own: they are asked, not restated.
namespace VelAuditValues {

/// Reports what is read otherwise than written, or not at all.
void check(const VelAuditSite& theSite);

} // namespace VelAuditValues

#endif
