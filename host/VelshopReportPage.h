#ifndef VELSHOPREPORTPAGE_H
#define VELSHOPREPORTPAGE_H

#include <QByteArray>
#include <QString>

/// The whole shop on one page, for those who own it: conditions, articles with their ladders, fees, the map of gaps,
/// and what the audit says about the documents. The account is the one that the library has read.
QByteArray reportPage(const QString& theShop, const QString& theAccount);

#endif
