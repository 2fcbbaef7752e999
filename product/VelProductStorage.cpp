#include "product/VelProductStorage.h"

#include <QDebug>

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <new>

namespace {

// Reserved once as address space; the system gives memory only to what is used. Room for about 500,000 products.
const std::size_t MAIN_PRODUCTS_SIZE = 64 * 1024 * 1024;
const std::size_t ADD_ONS_SIZE = 32 * 1024 * 1024;

struct ShelfSpace
{
    char* myNext;
    char* myEnd;
};

char* reservedBlock()
{
    static char* const block = static_cast<char*>(std::malloc(MAIN_PRODUCTS_SIZE + ADD_ONS_SIZE));
    return block;
}

ShelfSpace& space(VelProductStorage::Shelf theShelf)
{
    static char* const block = reservedBlock();
    static ShelfSpace mainProducts{block, block ? block + MAIN_PRODUCTS_SIZE : nullptr};
    static ShelfSpace addOns{mainProducts.myEnd, block ? mainProducts.myEnd + ADD_ONS_SIZE : nullptr};
    return theShelf == VelProductStorage::SHELF_ADD_ONS ? addOns : mainProducts;
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
    return block && !isBelow(theObject, block) && isBelow(theObject, block + MAIN_PRODUCTS_SIZE + ADD_ONS_SIZE);
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
    ShelfSpace& shelf = space(theShelf);
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
    for (const Shelf shelf : {SHELF_MAIN_PRODUCTS, SHELF_ADD_ONS}) {
        if (object + aligned(theSize) == space(shelf).myNext) {
            space(shelf).myNext = object;
            return; // empty add-ons begin where full main products end
        }
    }
}
