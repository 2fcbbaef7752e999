#include "product/VelProductStorage.h"

#include "product/VelAddressRange.h"

#include <QDebug>

#include <array>
#include <cstddef>
#include <functional>
#include <new>

namespace {

// Addresses alone: the system is asked for memory in steps, as products come. Room for about 500,000 products.
const std::size_t SHELF_SIZES[] = {64 * 1024 * 1024, 32 * 1024 * 1024, 192 * 1024 * 1024};
const std::size_t STEP = 1024 * 1024; // all shelves are multiples of it

struct ShelfSpace
{
    char* myBegin; ///< null when there are no addresses
    char* myNext;
    char* myMemoryEnd; ///< the memory got so far ends here
    char* myEnd;
};

using Shelves = std::array<ShelfSpace, VelProductStorage::SHELVES>;

Shelves emptyShelves()
{
    Shelves shelves{};
    char* next = VelAddressRange::find(SHELF_SIZES[0] + SHELF_SIZES[1] + SHELF_SIZES[2]);
    for (std::size_t shelf = 0; next && shelf < shelves.size(); ++shelf) {
        shelves[shelf] = {next, next, next, next + SHELF_SIZES[shelf]};
        next += SHELF_SIZES[shelf];
    }
    return shelves;
}

Shelves& shelves()
{
    static Shelves theShelves = emptyShelves();
    return theShelves;
}

std::size_t roundedUp(std::size_t theSize, std::size_t theUnit)
{
    return (theSize + theUnit - 1) / theUnit * theUnit;
}

std::size_t aligned(std::size_t theSize)
{
    return roundedUp(theSize, alignof(std::max_align_t));
}

bool hasAddresses(const ShelfSpace& theShelf, std::size_t theSize)
{
    return static_cast<std::size_t>(theShelf.myEnd - theShelf.myNext) >= theSize;
}

/// Whether there is memory for so much more; the system is asked for it where it isn't there yet.
bool getMemory(ShelfSpace& theShelf, std::size_t theSize)
{
    const auto ready = static_cast<std::size_t>(theShelf.myMemoryEnd - theShelf.myNext);
    if (ready >= theSize)
        return true;
    const std::size_t growth = roundedUp(theSize - ready, STEP);
    if (!VelAddressRange::getMemory(theShelf.myMemoryEnd, growth))
        return false;
    theShelf.myMemoryEnd += growth;
    return true;
}

bool isOnAShelf(const char* theObject)
{
    const std::less<const char*> isBelow;
    for (const ShelfSpace& shelf : shelves())
        if (!isBelow(theObject, shelf.myBegin) && isBelow(theObject, shelf.myMemoryEnd))
            return true;
    return false;
}

void warnOnce(bool& theHasWarned, const char* theReason)
{
    if (!theHasWarned)
        qWarning("VelProductStorage: %s", theReason);
    theHasWarned = true;
}

void* heapRoomInsteadOfFullShelf(std::size_t theSize)
{
    static bool hasWarned = false;
    warnOnce(hasWarned, "the reserved storage is used up, products come from the heap from now on");
    return ::operator new(theSize);
}

void* heapRoomInsteadOfRefusedMemory(std::size_t theSize)
{
    static bool hasWarned = false;
    warnOnce(hasWarned, "the system refuses storage at rising addresses, products come from the heap in any order "
                        "until it gives some again");
    return ::operator new(theSize);
}

} // namespace

void* VelProductStorage::allocate(Shelf theShelf, std::size_t theSize)
{
    ShelfSpace& shelf = shelves()[theShelf];
    const std::size_t size = aligned(theSize);
    if (shelf.myBegin && !hasAddresses(shelf, size))
        return heapRoomInsteadOfFullShelf(theSize);
    if (!shelf.myBegin || !getMemory(shelf, size))
        return heapRoomInsteadOfRefusedMemory(theSize);
    char* object = shelf.myNext;
    shelf.myNext += size;
    return object;
}

void VelProductStorage::release(void* theObject, std::size_t theSize)
{
    char* object = static_cast<char*>(theObject);
    if (!isOnAShelf(object)) {
        ::operator delete(theObject);
        return;
    }
    for (ShelfSpace& shelf : shelves()) {
        if (object + aligned(theSize) == shelf.myNext) {
            shelf.myNext = object;
            return; // an empty shelf begins where the full one before it ends
        }
    }
}
