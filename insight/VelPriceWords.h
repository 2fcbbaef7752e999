#ifndef VELPRICEWORDS_H
#define VELPRICEWORDS_H

#include "frame/VelEnumerations.h"
#include "insight/VelInsightExport.h"

#include <QString>
#include <QStringList>

class VelOrderSource;
class VelProductAbstract;
class VelTarmPriceBand;
struct VelTarmPriceAnswer;

/// The words in which observers tell of prices. Amounts are in cents.
namespace VelPriceWords {

/// As "bulk".
VELINSIGHT_EXPORT QString model(VelDiscountModel theModel);

/// As "NET, MAIL".
VELINSIGHT_EXPORT QString orderSource(const VelOrderSource& theSource);

/// As "1 piece", "0 pieces", "12 pieces"; the word is the one for a single thing.
VELINSIGHT_EXPORT QString counted(qint64 theCount, const QString& theWord);

/// As "131 Roll bundle M".
QString product(const VelProductAbstract& theProduct);

/// As "36 to 72" or "from 73".
QString band(const VelTarmPriceBand& theBand);

/// What is charged, as "1 x 990 + 20 x 9"; empty for nothing.
QString charges(const VelTarmPriceAnswer& theAnswer);

/// As "NET, POS and NET, MAIL".
QString list(const QStringList& theWords);

} // namespace VelPriceWords

#endif
