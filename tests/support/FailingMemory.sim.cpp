#include "tests/support/FailingMemory.h"

#include <cstdlib>
#include <new>

namespace {

/// Allocations that still succeed; negative while none is to fail.
std::int64_t left = -1;
bool struck = false;

}  // namespace

void* operator new(std::size_t size)
{
    if (left > 0 && --left == 0) {
        struck = true;
        throw std::bad_alloc();
    }
    if (void* const memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace tests {

FailingMemory::FailingMemory(std::int64_t n)
{
    struck = false;
    left = n;
}

FailingMemory::~FailingMemory()
{
    left = -1;
}

bool FailingMemory::HasStruck()
{
    return struck;
}

}  // namespace tests
