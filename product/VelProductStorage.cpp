#include "product/VelProductStorage.h"

#include <QDebug>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <new>

namespace {

// Reserved once as address space; the system gives memory only to what is used. Room for about 500,000 products.
const std::size_t SHELF_SIZES[] = {64 * 1024 * 1024, 32 * 1024 * 1024, 192 * 1024 * 1024};
const std::size_t BLOCK_SIZE = SHELF_SIZES[0] + SHELF_SIZES[1] + SHELF_SIZES[2];

struct ShelfSpace
{
    char* myNext;
    char* myEnd;
};

char* reservedBlock()
{
    static char* const block = static_cast<char*>(std::malloc(BLOCK_SIZE));
    return block;
}

std::array<ShelfSpace, VelProductStorage::SHELVES> emptyShelves()
{
    std::array<ShelfSpace, VelProductStorage::SHELVES> shelves{};
    char* next = reservedBlock();
    for (std::size_t shelf = 0; next && shelf < shelves.size(); ++shelf) {
        shelves[shelf] = {next, next + SHELF_SIZES[shelf]};
        next += SHELF_SIZES[shelf];
    }
    return shelves;
}

std::array<ShelfSpace, VelProductStorage::SHELVES>& shelves()
{
    static std::array<ShelfSpace, VelProductStorage::SHELVES> theShelves = emptyShelves();
    return theShelves;
}

std::size_t aligned(std::size_t theSize)
{
    const std::size_t alignment = alignof(std::max_align_t);
    return (theSize + alignment - 1) / alignment * alignment;
}

bool isOnAShelf(const char* theObject)
{
    const char* block = reservedBlock();
    const std::less<const char*> isBelow;
    return block && !isBelow(theObject, block) && isBelow(theObject, block + BLOCK_SIZE);
}

void* heapRoom(std::size_t theSize)
{
    static bool hasWarned = false;
    if (!hasWarned)
        qWarning("VelProductStorage: the reserved storage is used up, products come from the heap from now on");
    hasWarned = true;
    return ::operator new(theSize);
}

} // namespace

void* VelProductStorage::allocate(Shelf theShelf, std::size_t theSize)
{
    ShelfSpace& shelf = shelves()[theShelf];
    const std::size_t size = aligned(theSize);
    if (!shelf.myNext || static_cast<std::size_t>(shelf.myEnd - shelf.myNext) < size)
        return heapRoom(theSize);
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
