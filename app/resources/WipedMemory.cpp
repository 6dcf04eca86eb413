// Heap memory is overwritten before it is given back: what passes through a text on its way, a password above all, leaves no copy behind.
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
