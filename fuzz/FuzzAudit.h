#ifndef FUZZAUDIT_H
#define FUZZAUDIT_H

#include <QByteArray>
#include <QString>

/// Audits a small shop whose document of that name, such as "pricelist.xml" or "coupons/coupon.xml", is the input, and
/// requires that each finding has a place in its document.
void auditDocument(const QString& theFile, const QByteArray& theDocument);

#endif
