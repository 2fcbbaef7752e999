#ifndef VELSHOPBILLHTML_H
#define VELSHOPBILLHTML_H

#include <QByteArray>

struct VelshopBillSheet;

/// The bills of an order as a page for browser and printer: well-formed, without scripts or anything from elsewhere.
QByteArray billPage(const VelshopBillSheet& theSheet);

#endif
