#ifndef VELTESTPRICES_H
#define VELTESTPRICES_H

#include "price/VelTarmPriceKey.h"
#include "support/VelTestMain.h"

#include <QRegularExpression>

/// An element with price entries, each written as type, level, "@" quantity, "=" price, as in "B0=100 P1@5=450"; what
/// is left out is left out of the entry, too. Each entry has the further attributes, too.
inline QDomElement priced(const QString& thePrices, const QString& theTag = QStringLiteral("article"),
                          const QString& theFurtherAttributes = QString())
{
    static const QRegularExpression pattern(QStringLiteral("^([A-Za-z,]*)(-?\\d+)(?:@(-?\\d+))?(?:=(-?\\d+))?$"));
    const QStringList names = {QStringLiteral("type"), QStringLiteral("level"), QStringLiteral("quantity"),
                               QStringLiteral("price")};
    QString entries;
    for (const QString& text : thePrices.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch entry = pattern.match(text);
        require(entry.hasMatch(), text);
        entries += QStringLiteral("<e ") + theFurtherAttributes;
        for (int i = 0; i < names.size(); ++i)
            if (!entry.captured(i + 1).isEmpty())
                entries += QStringLiteral(" %1='%2'").arg(names.at(i), entry.captured(i + 1));
        entries += QStringLiteral("/>");
    }
    return parsedElement(QStringLiteral("<%1><base_prices>%2</base_prices></%1>").arg(theTag, entries));
}

inline VelTarmPriceKey priceKey(int theLevel, int theModel,
                                const VelOrderSource& theSource = VelOrderSource::onlineMailOrder())
{
    return VelTarmPriceKey(theSource, theLevel, static_cast<VelDiscountModel>(theModel));
}

#endif
