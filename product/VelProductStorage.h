#ifndef VELPRODUCTSTORAGE_H
#define VELPRODUCTSTORAGE_H

#include <cstddef>

/**
 * Gives products their addresses. A cart is walked in the order of its product pointers, and that order is part of what
 * it costs: an add-on inherits a level only from a main product that was priced before it, and of two products with the
 * same base transfer price the first pays no unit charge. Left to the heap the same cart could cost different amounts
 * in two runs.
 *
 * So products live in rising storage, in the order in which they are first read, main products below add-ons, also when
 * a later load adds more of either. Memory is taken in steps, as products come. When the storage is used up, or the
 * system refuses a step, products come from the heap, with one warning of each.
 */
namespace VelProductStorage {

/// Articles have a shelf of their own for another reason: pricing walks from product to article, and neighbours are
/// near to reach.
enum Shelf { SHELF_MAIN_PRODUCTS, SHELF_ADD_ONS, SHELF_ARTICLES };
const int SHELVES = 3;

/// Room for one object, never null.
void* allocate(Shelf theShelf, std::size_t theSize);

/// Gives room back. The last object of a shelf makes room for the next one; the place of any other stays empty.
void release(void* theObject, std::size_t theSize);

} // namespace VelProductStorage

#endif
