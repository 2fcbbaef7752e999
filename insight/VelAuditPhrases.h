#ifndef VELAUDITPHRASES_H
#define VELAUDITPHRASES_H

#include "frame/VelOrderSource.h"
#include "insight/VelAuditCatalog.h"
#include "insight/VelAuditFinding.h"

#include <QString>

/// What the messages about shops have in common.
namespace VelAuditPhrases {

/// As "net to mail order".
QString orderWay(const VelOrderSource& theSource);

/// As "article 101", "transfer 11001".
QString entry(const VelAuditCatalog::Entry& theEntry);

/// As "1 piece", "12 pieces".
QString pieces(int theCount);

/// As "1 piece costs", "12 pieces cost".
QString piecesCost(int theCount);

/// As "1 cent", "-1 cents", "12 cents".
QString cents(int theAmount);

/// As "line 12". The same file is meant.
QString line(const VelAuditDocument& theDocument, const QDomElement& theElement);

/// Puts an element beside a finding: the value of an attribute of it, or the element where it has no such attribute.
void beside(VelAuditFinding& theFinding, const VelAuditDocument& theDocument, const QDomElement& theElement,
            const QString& theAttribute, const QString& theMessage);

} // namespace VelAuditPhrases

#endif
