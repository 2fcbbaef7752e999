#include "product/VelAddressRange.h"

#include <QtGlobal>

#include <cstdint>
#include <cstdlib>

#if defined(Q_OS_UNIX) && QT_POINTER_SIZE == 8
#define VELTARM_MAPS_MEMORY
#include <sys/mman.h>
#endif

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VELTARM_FINDS_LEAKS
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(VELTARM_FINDS_LEAKS)
#include <sanitizer/lsan_interface.h>
#endif

#ifdef VELTARM_MAPS_MEMORY

namespace {

/// The system maps side by side, upward or downward. A process has to map that much before it meets the range.
const std::uintptr_t DISTANCE = std::uintptr_t(16) * 1024 * 1024 * 1024;
const std::size_t SAMPLE = 1024 * 1024;

void* mapped(void* theWish, std::size_t theSize)
{
    void* memory = mmap(theWish, theSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? nullptr : memory;
}

/// What lies there may own heap memory, which is no leak then.
void tellLeakFinder(const char* theBegin, std::size_t theSize)
{
#if defined(__SANITIZE_ADDRESS__) || defined(VELTARM_FINDS_LEAKS)
    __lsan_register_root_region(theBegin, theSize);
#else
    static_cast<void>(theBegin);
    static_cast<void>(theSize);
#endif
}

} // namespace

/// Below what the system maps now, or above where it begins low.
char* VelAddressRange::find(std::size_t theSize)
{
    void* const sample = mapped(nullptr, SAMPLE);
    if (!sample)
        return nullptr;
    munmap(sample, SAMPLE);
    const auto place = reinterpret_cast<std::uintptr_t>(sample);
    const std::uintptr_t distance = DISTANCE + theSize;
    return reinterpret_cast<char*>(place > distance ? place - distance : place + distance);
}

bool VelAddressRange::getMemory(char* theBegin, std::size_t theSize)
{
    void* const memory = mapped(theBegin, theSize);
    if (memory == theBegin)
        tellLeakFinder(theBegin, theSize);
    else if (memory) // something else lies there
        munmap(memory, theSize);
    return memory == theBegin;
}

#else

char* VelAddressRange::find(std::size_t theSize)
{
    return static_cast<char*>(std::malloc(theSize));
}

bool VelAddressRange::getMemory(char*, std::size_t)
{
    return true;
}

#endif
