#ifndef VELADDRESSRANGE_H
#define VELADDRESSRANGE_H

#include <cstddef>

/**
 * A long range of addresses whose memory comes piece by piece, so that one piece always lies above the other. On Unix
 * of 64 bits nothing is taken beforehand, not even address space: a process with a limit on it (ulimit -v) pays for
 * what it uses. Elsewhere all comes from the heap at once, which takes memory only where it is written to.
 */
namespace VelAddressRange {

/// The begin of so many free addresses, null when there are none. They lie where the system maps nothing by itself.
char* find(std::size_t theSize);

/// Whether there is memory at these addresses now, which are part of a range and a multiple of pages; it stays for
/// good.
bool getMemory(char* theBegin, std::size_t theSize);

} // namespace VelAddressRange

#endif
