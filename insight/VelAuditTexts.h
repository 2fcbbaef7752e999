#ifndef VELAUDITTEXTS_H
#define VELAUDITTEXTS_H

class QString;
class VelAuditSite;

/// Texts that the library compares letter by letter.
namespace VelAuditTexts {

/// Reports blanks, cases and slips by which a text isn't found.
void check(const VelAuditSite& theSite);

/// Of a word or number, which are trimmed nearly everywhere: the places where letters and blanks count all the same.
void checkExact(const VelAuditSite& theSite);

/// What the library reads of the days of a shipping time: "3 to 5 days are read".
QString daysRead(const VelAuditSite& theSite);

} // namespace VelAuditTexts

#endif
