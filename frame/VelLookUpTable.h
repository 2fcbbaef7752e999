#ifndef VELLOOKUPTABLE_H
#define VELLOOKUPTABLE_H

#include <QMap>

/// A small two-way table with a default in either direction.
template <typename Key, typename Value>
class VelLookUpTable
{
public:
    /// Adds the pair, or replaces the value of an existing key.
    void insert(Key theKey, const Value& theValue) { myMap.insert(theKey, theValue); }

    /// What is answered for a value that no key has, and for a key that isn't there.
    void setDefaults(Key theKey, const Value& theValue)
    {
        myDefaultKey = theKey;
        myDefaultValue = theValue;
    }

    /// The key's value, else the default value.
    Value findByKey(Key theKey) const { return myMap.value(theKey, myDefaultValue); }

    /// The lowest key with that value, else the default key.
    Key findByValue(const Value& theValue) const { return myMap.key(theValue, myDefaultKey); }

private:
    QMap<Key, Value> myMap;
    Key myDefaultKey = Key();
    Value myDefaultValue = Value();
};

#endif
