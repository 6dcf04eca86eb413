// What C++ objects held in the heap is overwritten before it is given back: a password on its way through texts leaves no copy there.
#include <malloc.h>
#include <windows.h>

#include <cstdlib>
#include <new>

void operator delete(void* memory) noexcept
{
    if (memory)
        SecureZeroMemory(memory, _msize(memory));
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}
