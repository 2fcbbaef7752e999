#ifndef VELQUICKSORT_H
#define VELQUICKSORT_H

#include <utility>

/// The steps of quickSort.
namespace VelQuickSort {

/// Splits a range of at least four, whose first, middle and last element are in order, at its middle one. Gives the
/// place where that one comes to stand.
template <typename Iterator, typename LessThan>
Iterator split(Iterator theFirst, Iterator theMiddle, Iterator theLast, LessThan theLessThan)
{
    using std::swap;
    swap(*theMiddle, *theLast);
    Iterator low = theFirst;
    Iterator high = theLast - 1;
    while (low < high) {
        while (low < high && theLessThan(*low, *theLast))
            ++low;
        while (low < high && theLessThan(*theLast, *high))
            --high;
        if (low < high)
            swap(*low++, *high--);
    }
    if (theLessThan(*low, *theLast))
        ++low;
    swap(*low, *theLast);
    return low;
}

} // namespace VelQuickSort

/**
 * Sorts a range in place, comparison for comparison as Qt 5's qSort did, which Qt 6 has no longer: equals end in the
 * same order, and so does what a comparison leaves open that is no strict weak order. Such a one is borne; std::sort
 * might read out of bounds.
 */
template <typename Iterator, typename LessThan>
void quickSort(Iterator theBegin, Iterator theEnd, LessThan theLessThan)
{
    using std::swap;
    while (theEnd - theBegin > 1) {
        const auto count = theEnd - theBegin;
        const Iterator middle = theBegin + count / 2;
        const Iterator last = theEnd - 1;
        if (theLessThan(*last, *theBegin))
            swap(*last, *theBegin);
        if (count == 2)
            return;
        if (theLessThan(*middle, *theBegin))
            swap(*middle, *theBegin);
        if (theLessThan(*last, *middle))
            swap(*last, *middle);
        if (count == 3)
            return;
        const Iterator place = VelQuickSort::split(theBegin, middle, last, theLessThan);
        quickSort(theBegin, place, theLessThan);
        theBegin = place + 1;
    }
}

#endif
