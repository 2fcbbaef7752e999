#ifndef VELENUMFLAGS_H
#define VELENUMFLAGS_H

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// The single bits of a flag value, lowest first. A value below 1 has none.
template <typename Enum>
QList<Enum> splitEnumType(Enum theFlags)
{
    QList<Enum> result;
    int rest = theFlags;
    for (unsigned int bit = 1; rest > 0; bit *= 2) { // unsigned, since the bit is doubled once past the highest
        const int flag = static_cast<int>(bit);
        if (rest & flag) {
            result.append(static_cast<Enum>(flag));
            rest -= flag;
        }
    }
    return result;
}

/// Of the keys that carry the value the one that sorts first by plain comparison: the iteration order of a hash would
/// differ from run to run. The table's end when no key carries it.
template <typename Enum>
typename QHash<QString, Enum>::const_iterator smallestKeyOf(const QHash<QString, Enum>& theTable, Enum theValue)
{
    auto result = theTable.constEnd();
    for (auto row = theTable.constBegin(); row != theTable.constEnd(); ++row) {
        if (row.value() == theValue && (result == theTable.constEnd() || row.key() < result.key()))
            result = row;
    }
    return result;
}

/// The keys of the bits that a flag value holds, lowest bit first, joined with ",". Bits without a key are left out.
template <typename Enum>
QString joinedBitKeys(const QHash<QString, Enum>& theTable, Enum theValue)
{
    QStringList keys;
    for (const Enum bit : splitEnumType(theValue)) {
        const auto row = smallestKeyOf(theTable, bit);
        if (row != theTable.constEnd())
            keys.append(row.key());
    }
    return keys.join(QLatin1Char(','));
}

#endif
